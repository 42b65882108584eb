// The command as the analysis and the output read it: flags, numbers and codes, each record converted from the raw
// record of its subcommand.
#pragma once

#include "module/settings/subcommand_records.h"

#include <string>
#include <vector>

namespace bldatman {

/// The variables and how they are paired. The i-th name belongs to the i-th column.
class BldatmanVariableSetting {
public:
    BldatmanVariableSetting() = default;
    explicit BldatmanVariableSetting(const BldatmanVariableSubcommand& raw);

    const std::vector<std::string>& variableNames() const { return variableNames_; }
    const std::vector<std::string>& withNames() const { return withNames_; }
    const std::vector<Column>& variableColumns() const { return variableColumns_; }
    const std::vector<Column>& withColumns() const { return withColumns_; }
    bool paired() const { return paired_; }

private:
    std::vector<std::string> variableNames_;
    std::vector<std::string> withNames_;
    std::vector<Column> variableColumns_;
    std::vector<Column> withColumns_;
    bool paired_ = false;
};

class BldatmanCriteriaSetting {
public:
    /// The codes that `agreementLimit` holds in place of a coverage.
    static constexpr double twoStandardDeviations = -2.0;
    static constexpr double threeStandardDeviations = -3.0;

    BldatmanCriteriaSetting() = default;
    explicit BldatmanCriteriaSetting(const BldatmanCriteriaSubcommand& raw);

    const std::string& scope() const { return scope_; }
    const std::string& classMissing() const { return classMissing_; }  ///< the keyword is accepted; nothing reads it
    bool logTransform() const { return logTransform_; }

    /// The coverage of the limits of agreement in percent, or one of the two codes.
    double agreementLimit() const { return agreementLimit_; }

    double ciLevelAgreement() const { return ciLevelAgreement_; }  ///< percent
    double ciLevelMeanDiff() const { return ciLevelMeanDiff_; }    ///< percent
    bool percentage() const { return percentage_; }

private:
    std::string scope_ = "ANALYSIS";
    std::string classMissing_ = "EXCLUDE";
    bool logTransform_ = false;
    double agreementLimit_ = 95.0;
    double ciLevelAgreement_ = 95.0;
    double ciLevelMeanDiff_ = 95.0;
    bool percentage_ = false;
};

class BldatmanPrintSetting {
public:
    /// The values of `sortOrder`; every value but `ascending` and `unsorted` sorts descending.
    static constexpr int descending = 0;
    static constexpr int ascending = 1;
    static constexpr int unsorted = 2;

    BldatmanPrintSetting() = default;
    explicit BldatmanPrintSetting(const BldatmanPrintSubcommand& raw);

    bool details() const { return details_; }
    int rows() const { return rows_; }  ///< 0 to 65535
    const std::string& sortBy() const { return sortBy_; }
    int sortOrder() const { return sortOrder_; }
    bool printAgreement() const { return printAgreement_; }
    bool printMeanDiff() const { return printMeanDiff_; }

    /// The opposite of what the keyword says, on purpose; nothing reads it.
    bool printPercentage() const { return printPercentage_; }

private:
    bool details_ = false;
    int rows_ = 10;
    std::string sortBy_ = "MEASUREMENT";
    int sortOrder_ = unsorted;
    bool printAgreement_ = false;
    bool printMeanDiff_ = false;
    bool printPercentage_ = false;
};

}  // namespace bldatman
