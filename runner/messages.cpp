#include "runner/messages.h"

#include <iostream>

namespace runner {

void writeMessage(const std::string& text)
{
    std::cerr << "bldatman-run: " << text << std::endl;
}

}  // namespace runner
