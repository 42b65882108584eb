#include "runner/messages.h"
#include "runner/options.h"
#include "runner/platform/platform.h"
#include "runner/run.h"

#include <exception>

int main(int argc, char** argv)
{
    runner::returnLargeBlocks();
    runner::prepareStandardStreams();
    try {
        const runner::CommandLine commandLine = runner::readCommandLine(runner::argumentsOf(argc, argv));
        return commandLine.options ? runner::run(*commandLine.options) : commandLine.exitStatus;
    } catch (const std::exception& error) {
        runner::writeMessage(error.what());
        return runner::exitBadInput;
    }
}
