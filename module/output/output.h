// Builds the output document of one command and hands it to the host.
#pragma once

#include "host/case_adapter.h"
#include "host/output.h"
#include "host/procedure.h"
#include "module/analysis/pair_result.h"
#include "module/settings/input_setting.h"
#include "module/texts/text_catalogue.h"

#include <memory>
#include <string>
#include <vector>

namespace bldatman {

struct TableInputs;

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

    static std::string formatLevel(double level);

    /// The label of the limits of agreement in the tables.
    std::string agreementLabel() const;

    /// The label of the limits of agreement in the plots, which is made otherwise.
    std::string makeAgreementLimitLabel() const;

private:
    // Each returns 1 when there is no pair, else 0, whether or not its table was asked for; `generate` has seen to it
    // that there is one and looks at neither.
    int createDetailsTable(const BldatmanPairResult& record, std::string nameA, std::string nameB);
    int createMeanDifferenceCITable(const BldatmanPairResult& record, std::string nameA, std::string nameB);
    int createAgreementLimitCITable(const BldatmanPairResult& record, std::string nameA, std::string nameB);

    int createTable(void (*add)(const TableInputs& inputs), const BldatmanPairResult& record, const std::string& nameA,
                    const std::string& nameB);

    /// The plots of all pairs. Returns false: no failure.
    bool createPlots();

    std::unique_ptr<StatJSONGenerator> generator_;
    std::unique_ptr<ACAVarValidSpecs> validSpecs_;
    ProcedureDataSource* dataSource_;
    BpProcedure* procedure_;
    const std::vector<BldatmanPairResult>* results_;
    const BldatmanInputSetting* settings_;
    std::unique_ptr<BldatmanTextCatalogue> catalogue_;
};

}  // namespace bldatman
