#include "module/output/output.h"

#include "module/charts/plot_assembly.h"
#include "module/output/details_table.h"
#include "module/output/interval_tables.h"
#include "module/texts/labels.h"

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
    generator_ = std::make_unique<StatJSONGenerator>(catalogue_->getText("Bland-Altman Analysis"), "");
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

std::string BldatmanOutput::formatLevel(double level)
{
    return bldatman::formatLevel(level);
}

std::string BldatmanOutput::agreementLabel() const
{
    return tableLimitLabel(settings_->criteriaSetting().agreementLimit(), *catalogue_);
}

std::string BldatmanOutput::makeAgreementLimitLabel() const
{
    return plotLimitLabel(settings_->criteriaSetting().agreementLimit(), *catalogue_);
}

int BldatmanOutput::createDetailsTable(const BldatmanPairResult& record, std::string nameA, std::string nameB)
{
    return createTable(addDetailsTable, record, nameA, nameB);
}

int BldatmanOutput::createMeanDifferenceCITable(const BldatmanPairResult& record, std::string nameA, std::string nameB)
{
    return createTable(addMeanDifferenceTable, record, nameA, nameB);
}

int BldatmanOutput::createAgreementLimitCITable(const BldatmanPairResult& record, std::string nameA, std::string nameB)
{
    return createTable(addAgreementLimitTable, record, nameA, nameB);
}

int BldatmanOutput::createTable(void (*add)(const TableInputs& inputs), const BldatmanPairResult& record,
                                const std::string& nameA, const std::string& nameB)
{
    if (results_->empty()) {
        return 1;
    }
    add({*generator_, record, nameA, nameB, *settings_, *catalogue_});
    return 0;
}

bool BldatmanOutput::createPlots()
{
    addPlots(*generator_, *results_, *settings_, *catalogue_);
    return false;
}

}  // namespace bldatman
