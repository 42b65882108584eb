// Builds the output document of one command and hands it to the host.
#pragma once

#include "host/case_adapter.h"
#include "host/output.h"
#include "host/procedure.h"
#include "module/analysis/pair_result.h"
#include "module/settings/input_setting.h"
#include "module/texts/text_catalogue.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace bldatman {

class PivotTable;

class BldatmanOutput {
public:
    /// Keeps all four; chooses the language, fills the catalogue and creates the document.
    /// @throws what `BldatmanTextCatalogue::chooseLanguage` raises
    BldatmanOutput(BpProcedure& procedure, ProcedureDataSource& source, const std::vector<BldatmanPairResult>& results,
                   const BldatmanInputSetting& settings);
    ~BldatmanOutput();
    BldatmanOutput(const BldatmanOutput&) = delete;
    BldatmanOutput& operator=(const BldatmanOutput&) = delete;

    /// Builds, pair by pair, the tables that were asked for, then the plots of all pairs, and delivers the document.
    /// Returns 1, with nothing done, when there is no pair, else 0. Whether the host could deliver is not looked at.
    int generate();

    /// "%.2f" in the C numeric locale, which the module never sets.
    static std::string formatLevel(double level);

    /// The label of the limits of agreement in the tables: "95.00% Agreement", "2 SD Agreement".
    std::string agreementLabel() const;

    /// The label of the limits of agreement in the plots, which is made otherwise; defined in charts/.
    std::string makeAgreementLimitLabel() const;

private:
    // Each returns 1 when there is no pair, else 0, whether or not its table was asked for; `generate` has seen to it
    // that there is one and looks at neither.
    int createDetailsTable(const BldatmanPairResult& record, std::string nameA, std::string nameB);
    int createMeanDifferenceCITable(const BldatmanPairResult& record, std::string nameA, std::string nameB);
    int createAgreementLimitCITable(const BldatmanPairResult& record, std::string nameA, std::string nameB);

    void addDetailFootnotes(PivotTable& table, std::uint64_t rowCount, const std::string& nameA) const;
    void addLogFootnote(PivotTable& table) const;
    std::unique_ptr<Descendants> makeBiasColumns(PivotTable& table) const;
    std::unique_ptr<Descendants> makeLimitColumns(PivotTable& table) const;
    void addIntervalRowLabels(PivotTable& table, const std::string& nameA, const std::string& nameB) const;

    /// The plots of all pairs; defined in charts/. Returns false: no failure.
    bool createPlots();

    std::string text(const std::string& key, const std::string& arg1 = {}, const std::string& arg2 = {}) const;

    /// "95.00% Confidence Interval"; the catalogue places the level and the sign.
    std::string confidenceIntervalLabel(double level) const;

    std::unique_ptr<StatJSONGenerator> generator_;
    std::unique_ptr<ACAVarValidSpecs> validSpecs_;
    ProcedureDataSource* dataSource_;
    BpProcedure* procedure_;
    const std::vector<BldatmanPairResult>* results_;
    const BldatmanInputSetting* settings_;
    std::unique_ptr<BldatmanTextCatalogue> catalogue_;
};

}  // namespace bldatman
