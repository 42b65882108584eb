#include "standin/runner/messages.h"

#include <iostream>

namespace standin {

void writeMessage(const std::string& text)
{
    std::cerr << "bldatman-run: " << text << std::endl;
}

}  // namespace standin
