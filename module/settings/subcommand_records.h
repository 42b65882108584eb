// The command as the parser delivered it, one record per subcommand, mostly as upper-case texts.
//
// The initial values hold where the whole subcommand is absent. Where the subcommand is present, the reader stores a
// default for every keyword that is not. It equals the initial value but for `paired` (default "NO") and `meanDiff`
// (default "FALSE"); `descending` gets "TRUE" where SORT is given without a direction.
#pragma once

#include "module/column.h"

#include <cstdint>
#include <string>
#include <vector>

namespace bldatman {

/// The leading subcommand without a name.
struct BldatmanVariableSubcommand {
    std::vector<std::string> variableNames;
    std::vector<std::string> withNames;   ///< a copy of `variableNames` when WITH is absent
    std::string paired;                   ///< "YES" or "NO" after a successful read
    std::vector<Column> variableColumns;  ///< may be fewer than the names: an empty data set has no columns
    std::vector<Column> withColumns;
};

struct BldatmanCriteriaSubcommand {
    std::string scope = "ANALYSIS";
    std::string classMissing = "EXCLUDE";
    std::string logTransform = "FALSE";
    std::string agreementLimits = "95";
    double ciLevelAgreement = 95.0;
    double ciLevelMeanDiff = 95.0;
    std::string percentage = "FALSE";
};

/// The plots' switches. They have no typed copy: the charts read them here.
struct BldatmanPlotSubcommand {
    bool ratio = false;
    bool refLine = false;
    bool agreementLimits = false;
    bool agreementLimitsCi = false;
    bool ciMeanDiff = false;
};

struct BldatmanPrintSubcommand {
    std::string details = "FALSE";
    std::uint16_t rows = 10;  ///< ROWS modulo 65536
    std::string agreement = "FALSE";
    std::string meanDiff = "FLASE";  ///< spelt so on purpose: only ever compared with "TRUE"
    std::string percentage = "TRUE";
    std::string sortBy = "MEASUREMENT";
    std::string descending = "NA";  ///< "NA": no sort was asked for
};

}  // namespace bldatman
