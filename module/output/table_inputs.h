// What a table is made for and from.
#pragma once

#include "host/output.h"
#include "module/analysis/pair_result.h"
#include "module/settings/input_setting.h"
#include "module/texts/text_catalogue.h"

#include <string>

namespace bldatman {

struct TableInputs {
    StatJSONGenerator& document;
    const BldatmanPairResult& record;
    const std::string& nameA;
    const std::string& nameB;
    const BldatmanInputSetting& settings;
    const BldatmanTextCatalogue& catalogue;
};

}  // namespace bldatman
