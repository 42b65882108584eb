#include "report/drawing/svg_rewriting.h"

#include "report/drawing/gnuplot_marks.h"
#include "report/plots/plot_error.h"

#include <boost/property_tree/ptree.hpp>
#include <boost/property_tree/xml_parser.hpp>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <sstream>
#include <string_view>
#include <utility>

namespace report {

namespace {

using boost::property_tree::ptree;

const std::string attributesKey = "<xmlattr>";

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::ranges::find(names, name) != names.end();
}

std::string attribute(const ptree& element, const std::string& name)
{
    const auto attributes = element.find(attributesKey);
    return attributes == element.not_found() ? "" : attributes->second.get<std::string>(name, "");
}

/// Ink becomes the colour of the text around the plot; gnuplot's names and fonts go.
ptree rewriteAttributes(const ptree& attributes)
{
    ptree result;
    for (const auto& [name, value] : attributes) {
        if (!isOneOf(name, {"id", "color", "font-family"})) {
            result.push_back({name, isOneOf(value.data(), {"black", inkColourInSvg}) ? ptree("currentColor") : value});
        }
    }
    return result;
}

/// A point, which gnuplot writes as the use of a mark at "translate(x,y) scale(radius)", as a circle.
ptree circleFor(const ptree& use)
{
    constexpr auto wholeLine = std::numeric_limits<std::streamsize>::max();
    std::istringstream transform(attribute(use, "transform"));
    std::string x;
    std::string y;
    std::string radius;
    transform.ignore(wholeLine, '(');
    std::getline(transform, x, ',');
    std::getline(transform, y, ')');
    transform.ignore(wholeLine, '(');
    std::getline(transform, radius, ')');
    if (attribute(use, "xlink:href") != pointMarkInSvg || !transform) {
        throw PlotError("gnuplot has written a mark that is not known");
    }
    ptree attributes;
    attributes.push_back({"cx", ptree(x)});
    attributes.push_back({"cy", ptree(y)});
    attributes.push_back({"r", ptree(radius)});
    ptree circle;
    circle.push_back({attributesKey, attributes});
    return circle;
}

/// The attributes of a group of points, all of one colour that lets overlapping ones shine through.
ptree pointAttributes(const std::string& colour)
{
    ptree attributes;
    attributes.push_back({"fill", ptree(colour)});
    attributes.push_back({"fill-opacity", ptree("0.85")});
    return attributes;
}

ptree rewriteElement(const ptree& element);

/// What a group holds of use to the plot: not its name, its description, marks and an empty background.
void appendChildren(ptree& result, const ptree& element)
{
    for (const auto& [name, child] : element) {
        if (isOneOf(name, {attributesKey, "<xmlcomment>", "title", "desc", "defs", "rect"})) {
            continue;
        }
        ptree rewritten = name == "use" ? circleFor(child) : rewriteElement(child);
        const bool isEmptyGroup = name == "g" && rewritten.count(attributesKey) == rewritten.size();
        if (!isEmptyGroup) {
            result.push_back({name == "use" ? "circle" : name, std::move(rewritten)});
        }
    }
}

ptree rewriteElement(const ptree& element)
{
    ptree result(element.data());
    const auto attributes = element.find(attributesKey);
    const auto point = element.find("use");
    if (point != element.not_found()) {
        result.push_back({attributesKey, pointAttributes(attribute(point->second, "color"))});
    } else if (attributes != element.not_found()) {
        result.push_back({attributesKey, rewriteAttributes(attributes->second)});
    }
    appendChildren(result, element);
    return result;
}

ptree rootAttributes(const std::string& viewBox, const std::string& titleId)
{
    ptree attributes;
    attributes.push_back({"xmlns", ptree("http://www.w3.org/2000/svg")});
    attributes.push_back({"viewBox", ptree(viewBox)});
    attributes.push_back({"role", ptree("img")});
    attributes.push_back({"aria-labelledby", ptree(titleId)});
    attributes.push_back({"font-family", ptree("sans-serif")});
    return attributes;
}

ptree titleElement(const std::string& id, const std::string& text)
{
    ptree attributes;
    attributes.push_back({"id", ptree(id)});
    ptree title(text);
    title.push_back({attributesKey, attributes});
    return title;
}

ptree readXml(const std::string& text)
{
    std::istringstream stream(text);
    ptree tree;
    try {
        read_xml(stream, tree, boost::property_tree::xml_parser::trim_whitespace);
    } catch (const boost::property_tree::xml_parser_error& error) {
        throw PlotError("gnuplot has written SVG that cannot be read: " + error.message());
    }
    return tree;
}

/// Without the declaration before it.
std::string writeXml(const ptree& tree)
{
    std::ostringstream stream;
    write_xml(stream, tree);
    const std::string text = stream.str();
    return text.substr(text.find('\n') + 1);
}

}  // namespace

std::string rewriteSvg(const std::string& svg, const std::string& titleId, const std::string& title)
{
    const ptree given = readXml(svg);
    const auto root = given.find("svg");
    if (root == given.not_found()) {
        throw PlotError("gnuplot has written something other than SVG");
    }
    ptree plot;
    plot.push_back({attributesKey, rootAttributes(attribute(root->second, "viewBox"), titleId)});
    plot.push_back({"title", titleElement(titleId, title)});
    appendChildren(plot, root->second);
    ptree document;
    document.push_back({"svg", std::move(plot)});
    return writeXml(document);
}

}  // namespace report
