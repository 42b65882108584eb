// Gnuplot's SVG made fit to stand in a page.
#pragma once

#include <stdexcept>
#include <string>

namespace report {

/// SVG that is not what gnuplot is known to write; `what()` says in which way.
class SvgError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The picture alone, from <svg> to </svg>, rewritten: it has an accessible name, takes the colour of its texts and its
/// font from where it stands, has no identifier but that of its title, and refers to nothing outside.
///
/// @param titleId  an identifier that nothing else of the page has
/// @param title    the picture's accessible name
/// @throws SvgError
std::string rewriteSvg(const std::string& svg, const std::string& titleId, const std::string& title);

}  // namespace report
