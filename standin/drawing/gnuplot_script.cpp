#include "standin/drawing/gnuplot_script.h"

#include "standin/drawing/axis_range.h"
#include "standin/drawing/picture_layout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_set>

namespace standin {

namespace {

constexpr int legendLeft = 28;
constexpr int legendSampleWidth = 36;
constexpr int legendTextLeft = 74;

/// Mid-tones: each stands out from a white ground and from a black one.
constexpr std::array<std::string_view, 6> lineColours = {"#808080", "#d1495b", "#8e63ce",
                                                         "#2e8b57", "#b8751a", "#1b8a9e"};
constexpr std::string_view pointColour = "#4588c9";

std::string decimal(double number)
{
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), end};
}

std::string octalEscape(unsigned char byte)
{
    const auto digit = [byte](int shift) { return static_cast<char>('0' + ((byte >> shift) & 7)); };
    return {'\\', digit(6), digit(3), digit(0)};
}

/// A quoted string of gnuplot that stands for the text whatever it holds. Digits are escaped as well: after an escape
/// they would be taken for more of it.
std::string quoted(std::string_view text)
{
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz ";
    std::string result = "\"";
    for (const char character : text) {
        const bool isPlain = plain.find(character) != std::string_view::npos;
        result += isPlain ? std::string(1, character) : octalEscape(static_cast<unsigned char>(character));
    }
    return result + '"';
}

std::string quotedLines(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() ? "" : "\n") + line;
    }
    return quoted(text);
}

std::string range(const AxisRange& axis)
{
    return "[" + decimal(axis.low) + ":" + decimal(axis.high) + "]";
}

std::string lineStyle(const LegendEntry& entry)
{
    const auto colour = static_cast<std::size_t>(entry.colour) % lineColours.size();
    return "lw 2 lc rgb '" + std::string(lineColours[colour]) + (entry.dashed ? "' dt (7,5)" : "' dt solid");
}

/// The share of the picture's width that gnuplot calls a place so far from the left edge.
std::string across(int place)
{
    return decimal(static_cast<double>(place) / PictureLayout::width);
}

/// The commands of one chart, part by part.
class ScriptWriter {
public:
    explicit ScriptWriter(const Chart& chart)
        : chart_(chart)
        , layout_(chart)
    {
        chooseRanges();
    }

    std::string write()
    {
        writePicture();
        writeAxes();
        writeLegend();
        writeTextLines(layout_.footnote, legendLeft, layout_.footnoteTop);
        writeLayers();
        return std::move(script_);
    }

private:
    /// With a margin around the points, and above and below the lines, which reach the ends of their axis.
    void chooseRanges()
    {
        constexpr double margin = 0.05;
        AxisExtent x;
        AxisExtent y;
        for (const PointLayer& layer : chart_.points) {
            x.include(layer.x);
            y.include(layer.y);
        }
        x.widen(margin);
        for (const LineLayer& line : chart_.lines) {
            x.include(line.x);
            y.include(line.y);
        }
        y.widen(margin);
        xRange_ = x.range();
        yRange_ = y.range();
    }

    void command(const std::string& line) { script_ += line + "\n"; }

    /// The share of the picture's height that gnuplot calls a place so far from the top edge.
    std::string down(int place) const { return decimal(1.0 - static_cast<double>(place) / layout_.height); }

    void writePicture()
    {
        command("reset");
        command("set encoding utf8");
        command("set terminal svg size " + std::to_string(PictureLayout::width) + "," + std::to_string(layout_.height) +
                " dynamic noenhanced font 'sans-serif,15'");
        command("set title " + quotedLines(layout_.title) + " font ',18' offset 0,-0.6");
        command("set tmargin at screen " + down(layout_.plotTop));
        command("set bmargin at screen " + down(layout_.plotTop + PictureLayout::plotHeight));
        command("set rmargin at screen " + across(PictureLayout::width - 40));
        command("unset key");
    }

    void writeAxes()
    {
        command("set xlabel " + quotedLines(layout_.xLabel));
        command("set ylabel " + quotedLines(layout_.yLabel));
        command("set xrange " + range(xRange_));
        command("set yrange " + range(yRange_));
        command("set border 3 lc rgb '#808080'");
        command("set tics nomirror out scale 0.5 format '%.10g' textcolor rgb 'black'");
    }

    void writeLegend()
    {
        int top = layout_.legendTop;
        for (const LegendEntry& entry : layout_.legend) {
            const std::string middle = down(top + PictureLayout::lineHeight / 2);
            command("set arrow from screen " + across(legendLeft) + "," + middle + " to screen " +
                    across(legendLeft + legendSampleWidth) + "," + middle + " nohead " + lineStyle(entry));
            top = writeTextLines(entry.text, legendTextLeft, top);
        }
    }

    /// Returns where the next line below them would begin.
    int writeTextLines(const std::vector<std::string>& lines, int left, int top)
    {
        for (const std::string& line : lines) {
            command("set label " + quoted(line) + " at screen " + across(left) + "," +
                    down(top + PictureLayout::lineHeight / 2) + " left font ',14'");
            top += PictureLayout::lineHeight;
        }
        return top;
    }

    void writeLayers()
    {
        // Neighbours stand side by side, at most so many to one side.
        command("set jitter overlap 0.3 spread 1.8 wrap 12");
        for (const PointLayer& layer : chart_.points) {
            addLayer(pointData(layer), std::string("points pt 7 ps ") + (layer.dodged ? "0.7" : "0.5") + " lc rgb '" +
                                           std::string(pointColour) + "'");
        }
        for (std::size_t i = 0; i < chart_.lines.size(); ++i) {
            addLayer(lineData(chart_.lines[i]), "lines " + lineStyle(layout_.legend[layout_.entryOfLine[i]]));
        }
        command("plot " + (layers_.empty() ? "NaN" : layers_));
        command("undefine $layer*");
    }

    /// A layer without data is left out: gnuplot would stumble over it.
    void addLayer(const std::string& data, const std::string& style)
    {
        if (data.empty()) {
            return;
        }
        const std::string block = "$layer" + std::to_string(layerCount_++);
        script_ += block + " << END\n" + data + "END\n";
        layers_ += (layers_.empty() ? "" : ", ") + block + " with " + style;
    }

    static std::string dataLine(double x, double y) { return decimal(x) + " " + decimal(y) + "\n"; }

    std::string pointData(const PointLayer& layer) const
    {
        std::string data;
        std::unordered_set<std::uint64_t> taken;
        for (std::size_t i = 0; i < layer.x.size(); ++i) {
            const bool finite = std::isfinite(layer.x[i]) && std::isfinite(layer.y[i]);
            if (finite && (layer.dodged || taken.insert(placeOf(layer.x[i], layer.y[i])).second)) {
                data += dataLine(layer.x[i], layer.y[i]);
            }
        }
        return data;
    }

    /// Where points are not moved apart, those that fall on one place of the picture look like one: one is drawn.
    std::uint64_t placeOf(double x, double y) const
    {
        const auto place = [](double value, const AxisRange& axis, int length) {
            return static_cast<std::uint64_t>((value - axis.low) / (axis.high - axis.low) * length);
        };
        return place(x, xRange_, PictureLayout::width) * (PictureLayout::plotHeight + 1) +
               place(y, yRange_, PictureLayout::plotHeight);
    }

    std::string lineData(const LineLayer& line) const
    {
        std::string data;
        for (std::size_t i = 0; i < line.x.size(); ++i) {
            const bool finite = std::isfinite(line.x[i]) && std::isfinite(line.y[i]);
            data += finite ? dataLine(line.x[i], line.y[i]) : "";
        }
        const bool level = std::ranges::adjacent_find(line.y, std::not_equal_to<>()) == line.y.end();
        return !data.empty() && level && isTooShortToSee(line)
                   ? dataLine(xRange_.low, line.y.front()) + dataLine(xRange_.high, line.y.front())
                   : data;
    }

    /// As where all points have one place on the axis; a level is then drawn across.
    bool isTooShortToSee(const LineLayer& line) const
    {
        const auto [least, largest] = std::ranges::minmax(line.x);
        return (largest - least) / (xRange_.high - xRange_.low) * PictureLayout::width < 1.0;
    }

    const Chart& chart_;
    const PictureLayout layout_;
    AxisRange xRange_{};
    AxisRange yRange_{};
    std::string script_;
    std::string layers_;  ///< of the plot command
    std::size_t layerCount_ = 0;
};

}  // namespace

std::string gnuplotScript(const Chart& chart)
{
    return ScriptWriter(chart).write();
}

}  // namespace standin
