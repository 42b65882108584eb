#include "standin/runner/arguments.h"
#include "standin/runner/memory.h"
#include "standin/runner/messages.h"
#include "standin/runner/options.h"
#include "standin/runner/run.h"
#include "standin/runner/standard_streams.h"

#include <exception>

int main(int argc, char** argv)
{
    standin::returnLargeBlocks();
    standin::prepareStandardStreams();
    try {
        const standin::CommandLine commandLine = standin::readCommandLine(standin::argumentsOf(argc, argv));
        return commandLine.options ? standin::run(*commandLine.options) : commandLine.exitStatus;
    } catch (const std::exception& error) {
        standin::writeMessage(error.what());
        return standin::exitBadInput;
    }
}
