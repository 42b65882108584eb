// Draws with gnuplot.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace report {

/// What gnuplot made of one script: a picture, or where that is empty, the reason why there is none.
struct Drawing {
    std::string svg;
    std::string reason;
};

/// Draws with one process of gnuplot.
///
/// @param scripts  whole lines each, that draw one picture to the standard output; an error in one does not touch the
///                 next, and an empty one draws nothing
/// @param drawn    told how many scripts are done, as they are
/// @return         what came of each script, in their order
/// @throws ProcessError  when gnuplot cannot be run
std::vector<Drawing> drawWithGnuplot(const std::vector<std::string>& scripts,
                                     const std::function<void(std::size_t)>& drawn);

}  // namespace report
