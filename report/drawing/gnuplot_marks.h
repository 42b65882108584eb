// What is asked of gnuplot and how it says so in SVG: the script writes the one, the SVG is searched for the other.
#pragma once

#include <string_view>

namespace report {

/// A filled circle.
constexpr std::string_view pointMark = "pt 7";
constexpr std::string_view pointMarkInSvg = "#gpPt6";

/// The colour of texts. What gnuplot colours black of its own accord reads "black" in its SVG.
constexpr std::string_view inkColour = "rgb 'black'";
constexpr std::string_view inkColourInSvg = "rgb(0,0,0)";

}  // namespace report
