#include "module/output/output.h"

namespace bldatman {

BldatmanOutput::BldatmanOutput(BpProcedure& procedure, ProcedureDataSource& source,
                               const std::vector<BldatmanPairResult>& results, const BldatmanInputSetting& settings)
    : validSpecs_(std::make_unique<ACAVarValidSpecs>(true, true, true))
    , dataSource_(&source)
    , procedure_(&procedure)
    , results_(&results)
    , settings_(&settings)
    , catalogue_(std::make_unique<BldatmanTextCatalogue>(BldatmanTextCatalogue::chooseLanguage()))
{
    // Last, since its title is a text of the catalogue.
    generator_ = std::make_unique<StatJSONGenerator>(text("Bland-Altman Analysis"), "");
}

BldatmanOutput::~BldatmanOutput()
{
    // The order of the members, not its reverse.
    generator_.reset();
    validSpecs_.reset();
    catalogue_.reset();
}

int BldatmanOutput::generate()
{
    if (results_->empty()) {
        return 1;
    }
    const OPSCommonOutput commonOutput(validSpecs_.get(), *dataSource_, procedure_, nullptr);
    StatJSONConverter converter(*procedure_);
    for (const BldatmanPairResult& record : *results_) {
        createDetailsTable(record, record.nameA, record.nameB);
        createMeanDifferenceCITable(record, record.nameA, record.nameB);
        createAgreementLimitCITable(record, record.nameA, record.nameB);
    }
    const bool status = createPlots();
    converter.generateOutput(generator_->getProcedureStatJSON());
    return static_cast<int>(status);
}

std::string BldatmanOutput::text(const std::string& key, const std::string& arg1, const std::string& arg2) const
{
    return catalogue_->getText(key, arg1, arg2);
}

}  // namespace bldatman
