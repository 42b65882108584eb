// Gnuplot's SVG made fit to stand in a page.
#pragma once

#include <string>

namespace report {

/// The plot alone, from <svg> to </svg>, rewritten: it has an accessible name, takes the colour of its texts and its
/// font from where it stands, has no identifier but that of its title, and refers to nothing outside.
///
/// @param titleId  an identifier that nothing else of the page has
/// @param title    the plot's accessible name
/// @throws PlotError  when it is not what gnuplot is known to write; says in which way
std::string rewriteSvg(const std::string& svg, const std::string& titleId, const std::string& title);

}  // namespace report
