#include "runner/run.h"

#include "runner/input/command_file.h"
#include "runner/input/csv_reader.h"
#include "runner/input/dictionary.h"
#include "runner/input/encoding.h"
#include "runner/input/input_error.h"
#include "runner/input/input_file.h"
#include "runner/messages.h"
#include "runner/module_library.h"
#include "runner/output/delivery.h"
#include "runner/output/output_file.h"
#include "runner/platform/paths.h"
#include "runner/terminal/progress_line.h"
#include "standin/command/command_text.h"
#include "standin/data/data_set.h"
#include "standin/session/session.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace runner {

namespace {

using standin::CommandText;
using standin::DataSet;

std::string megabytes(std::size_t bytes)
{
    const std::size_t tenths = bytes / 100000;
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

DataSet readCsvFile(const std::filesystem::path& file)
{
    const std::string name = shown(file);
    ProgressLine line;
    const auto show = [&line, &name](const char* what, std::size_t done, std::size_t total) {
        line.show(what + name, megabytes(done) + (total == 0 ? "" : " of " + megabytes(total)) + " MB");
    };
    const std::string bytes = readWholeFile(file, std::bind_front(show, "Loading "));
    return readCsv(bytes, name, std::bind_front(show, "Reading "));
}

DataSet readData(const Options& options)
{
    DataSet dataSet = readCsvFile(options.dataFile);
    if (!options.dictionaryFile.empty()) {
        applyDictionary(dataSet, readWholeFile(options.dictionaryFile), shown(options.dictionaryFile));
    }
    return dataSet;
}

std::vector<CommandText> readCommands(const Options& options)
{
    if (options.command) {
        return {standin::singleCommand(*options.command)};
    }
    const std::string fileName = shown(options.commandFile);
    const std::string bytes = readWholeFile(options.commandFile);
    return cutCommands(std::string(requireUtf8(bytes, fileName)), fileName);
}

/// One run of the program over its inputs. The library is loaded once the session stands ready, so that the session
/// sees it load.
class Run {
public:
    explicit Run(const Options& options)
        : options_(options)
    {
    }

    int execute()
    {
        try {
            prepare();
        } catch (const InputError& error) {
            writeMessage(error.what());
            return exitBadInput;
        }
        runCommands();
        if (!session_.monitor.breach().empty()) {
            writeMessage("the module broke the host's contract: " + session_.monitor.breach());
            status_ = exitContractBroken;
        } else if (!session_.documents.empty()) {
            writeDocuments();
        }
        finishTrace();
        return status_;
    }

private:
    void prepare()
    {
        session_.dataSet = readData(options_);
        session_.setLanguage(options_.language);
        session_.onComplaint = writeMessage;
        commands_ = readCommands(options_);
        beginTrace();
        library_.emplace(options_.module.empty() ? ModuleLibrary::besideHost() : options_.module);
    }

    void runCommands()
    {
        for (std::size_t i = 0; i < commands_.size() && session_.monitor.breach().empty(); ++i) {
            session_.command = commands_[i];
            if (!session_.run(library_->entryPoint())) {
                reportWithoutDocument(i);
            }
        }
    }

    void reportWithoutDocument(std::size_t index)
    {
        raise(exitCommandFailed);
        std::string which = "the command";
        if (!options_.command) {
            const auto line = standin::placeOf(*commands_[index].text, commands_[index].begin).line;
            which = "command " + std::to_string(index + 1) + " of " + std::to_string(commands_.size()) + " (" +
                    shown(options_.commandFile) + ", line " + std::to_string(line) + ")";
        }
        const std::size_t cases = session_.dataSet.caseCount;
        writeMessage(which + " ended without a document; " + std::to_string(cases) +
                     (cases == 1 ? " case was read" : " cases were read"));
    }

    void writeDocuments()
    {
        for (const std::string& failure : writeOutputs(session_.documents, options_.language, options_.outputs)) {
            reportNotWritten(failure);
        }
    }

    void beginTrace()
    {
        if (options_.traceFile.empty()) {
            return;
        }
        try {
            trace_.emplace(options_.traceFile);
            session_.monitor.traceTo(&trace_->stream());
        } catch (const OutputError& error) {
            reportNotWritten(error.what());
        }
    }

    /// The trace is written whether or not there is a document: it is there to find out why.
    void finishTrace()
    {
        session_.monitor.traceTo(nullptr);
        if (!trace_) {
            return;
        }
        try {
            trace_->commit();
        } catch (const OutputError& error) {
            reportNotWritten(error.what());
        }
    }

    void reportNotWritten(const std::string& failure)
    {
        writeMessage(failure);
        raise(exitOutputNotWritten);
    }

    void raise(ExitStatus status) { status_ = std::max<int>(status_, status); }

    const Options& options_;
    std::vector<CommandText> commands_;
    std::optional<OutputFile> trace_;
    std::optional<ModuleLibrary> library_;
    standin::Session session_;
    int status_ = exitDelivered;
};

}  // namespace

int run(const Options& options)
{
    return Run(options).execute();
}

}  // namespace runner
