#include "module/diagnostics.h"

#include <exception>
#include <iostream>

namespace bldatman {

void reportLine(std::string_view text)
{
    std::cerr << text << std::endl;
}

void reportCurrentException(std::string_view prefix)
{
    try {
        throw;
    } catch (const std::exception& error) {
        std::cerr << prefix << "Standard exception: " << error.what() << std::endl;
    } catch (...) {
        std::cerr << prefix << "Unknown exception occurred." << std::endl;
    }
}

}  // namespace bldatman
