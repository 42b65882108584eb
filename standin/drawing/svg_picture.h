// Gnuplot's SVG made fit to stand in a page.
#pragma once

#include <string>

namespace standin {

/// The picture alone, from <svg> to </svg>, rewritten: it has an accessible name, takes its text colour and its font
/// from where it stands, needs no identifier but `id`, and refers to nothing.
///
/// @param id     an identifier that no other picture of the page has
/// @param title  the picture's accessible name
/// @throws std::runtime_error  when `svg` is not what gnuplot writes
std::string rewriteSvg(const std::string& svg, const std::string& id, const std::string& title);

}  // namespace standin
