// What every program needs and every system has in its own way.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace runner {

/// The arguments of the program without its name, as UTF-8 where the platform has them as text.
std::vector<std::string> argumentsOf(int argc, char** argv);

/// To be called before anything is opened or written. Afterwards the standard streams take bytes as they are given, a
/// terminal shows UTF-8, and the place of a stream that the program was started without is occupied by something that
/// cannot be written to: the next file that is opened would take it, and receive what was meant for the stream.
void prepareStandardStreams();

/// From here on every large block that is freed goes back to the system at once. Otherwise a million cases, held in one
/// form after another, leave holes behind that nothing fits into.
void returnLargeBlocks();

/// True when the system takes both for the name of one file; links are followed elsewhere.
bool isSameName(const std::filesystem::path& one, const std::filesystem::path& other);

}  // namespace runner
