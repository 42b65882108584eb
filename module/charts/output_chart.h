// A Bland-Altman plot: its labels, and the statements from which the host draws it.
#pragma once

#include "host/output.h"
#include "module/settings/input_setting.h"
#include "module/texts/text_catalogue.h"

#include <string>

namespace bldatman {

class BldatmanOutputChart : public StatGPLGraph {
public:
    /// Keeps a pointer to the settings and one to the catalogue. The title is the chart's name too.
    BldatmanOutputChart(StatJSONGenerator& generator, const BldatmanInputSetting& settings, const std::string& title,
                        const BldatmanTextCatalogue& catalogue);

    void setAxisLabel(bool isX, const std::string& label);

    /// Points that overlap are drawn side by side, unless this is set to false.
    void setDodge(bool dodge) { dodge_ = dodge; }

    using Allocator = rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>;

    // The name of this operation is the host's, and stands here alone.
    void writeGPL(rapidjson::Value& graph, Allocator& allocator) override { addStatements(graph, allocator); }

private:
    /// Adds the chart's statements, in order, as the array "gpl": data source, columns, axes, title, points, the lines
    /// that the PLOT flags ask for, footnote. The mean difference is always drawn. Texts are inserted as they are;
    /// nothing is escaped.
    void addStatements(rapidjson::Value& graph, Allocator& allocator);

    std::string footnote() const;

    std::string xAxisLabel_;
    std::string yAxisLabel_;
    bool dodge_ = true;
    const BldatmanInputSetting* settings_;
    const BldatmanTextCatalogue* catalogue_;
};

}  // namespace bldatman
