// Numbers and texts in the forms in which gnuplot is given them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace report {

/// The shortest decimal form that reads back to the same double.
std::string gnuplotNumber(double number);

/// A quoted string of gnuplot that stands for the text whatever it holds: every byte but letters and blanks is written
/// as its octal code, so that nothing in it is run or interpreted.
std::string gnuplotText(std::string_view text);

/// The same for a text of several lines.
std::string gnuplotText(const std::vector<std::string>& lines);

}  // namespace report
