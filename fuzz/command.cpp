// A command file through parser and module, over a small data set: nothing escapes, and the contract is kept.
#include "fuzz/target.h"
#include "module/entry/entry_point.h"
#include "runner/input/command_file.h"
#include "runner/input/csv_reader.h"
#include "runner/input/input_error.h"
#include "standin/session/session.h"

#include <cstdlib>
#include <iostream>
#include <streambuf>

namespace {

/// Takes what is written for the user.
class Discarded : public std::streambuf {
protected:
    int_type overflow(int_type character) override { return traits_type::not_eof(character); }
};

void run(const standin::CommandText& command)
{
    standin::Session session;
    session.dataSet = runner::readCsv("a,b,c,t,d e\n1,2,2,x,1\n3,5,,y,2\n4,4,5,x,3\n2,3,1,,4\n", "data.csv");
    session.command = command;
    session.run(BLDATMAN);
    if (!session.monitor.breach().empty()) {
        std::abort();
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Discarded discarded;
    std::cerr.rdbuf(&discarded);
    const std::string text = fuzz::asText(data, size);
    run(standin::singleCommand(text));
    try {
        for (const standin::CommandText& command : runner::cutCommands(text, "commands.bld")) {
            run(command);
        }
    } catch (const runner::InputError&) {  // what a user is told
    }
    return 0;
}
