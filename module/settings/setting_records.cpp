#include "module/settings/setting_records.h"

#include <cstdlib>

namespace bldatman {

namespace {

/// A flag is set by exactly this text; anything else, other letter case included, leaves it off.
bool isTrue(const std::string& text)
{
    return text == "TRUE";
}

double agreementLimitFrom(const std::string& text)
{
    if (text == "TWOSD") {
        return BldatmanCriteriaSetting::twoStandardDeviations;
    }
    if (text == "THREESD") {
        return BldatmanCriteriaSetting::threeStandardDeviations;
    }
    return std::atof(text.c_str());
}

int sortOrderFrom(const std::string& descending)
{
    if (isTrue(descending)) {
        return BldatmanPrintSetting::descending;
    }
    return descending == "NA" ? BldatmanPrintSetting::unsorted : BldatmanPrintSetting::ascending;
}

}  // namespace

BldatmanVariableSetting::BldatmanVariableSetting(const BldatmanVariableSubcommand& raw)
    : variableNames_(raw.variableNames)
    , withNames_(raw.withNames)
    , variableColumns_(raw.variableColumns)
    , withColumns_(raw.withColumns)
    , paired_(raw.paired == "YES")
{
}

BldatmanCriteriaSetting::BldatmanCriteriaSetting(const BldatmanCriteriaSubcommand& raw)
    : scope_(raw.scope)
    , classMissing_(raw.classMissing)
    , logTransform_(isTrue(raw.logTransform))
    , agreementLimit_(agreementLimitFrom(raw.agreementLimits))
    , ciLevelAgreement_(raw.ciLevelAgreement)
    , ciLevelMeanDiff_(raw.ciLevelMeanDiff)
    , percentage_(isTrue(raw.percentage))
{
}

BldatmanPrintSetting::BldatmanPrintSetting(const BldatmanPrintSubcommand& raw)
    : details_(isTrue(raw.details))
    , rows_(raw.rows)
    , sortBy_(raw.sortBy)
    , sortOrder_(sortOrderFrom(raw.descending))
    , printAgreement_(isTrue(raw.agreement))
    , printMeanDiff_(isTrue(raw.meanDiff))
    , printPercentage_(!isTrue(raw.percentage))
{
}

}  // namespace bldatman
