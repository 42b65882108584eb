// One run of the stand-in: what the host has ready for the module, and what came out.
#pragma once

#include "standin/command/command_text.h"
#include "standin/data/data_set.h"
#include "standin/session/call_monitor.h"

#include <rapidjson/document.h>

#include <functional>
#include <list>
#include <string>
#include <vector>

namespace standin {

/// Host objects find the session that runs by themselves, as the real ones find their host.
class Session {
public:
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// The session that runs, the youngest one; null when there is none: then nothing is watched.
    static Session* running() noexcept;

    /// The session that runs, for what no host object can do without one.
    /// @throws std::logic_error when there is none
    static Session& current();

    /// Sets the output language: the code that the host reports, as it is, and the language folder that goes with it.
    void setLanguage(const std::string& code);

    /// Tells the user what is wrong with the command: keeps the text in `complaints` and hands it to `onComplaint`.
    void complain(const std::string& text);

    /// Calls the module's entry point for the command that stands ready, and checks that nothing of it is left.
    /// True when it delivered a document.
    bool run(void (*entryPoint)());

    /// True when the running command has delivered a document.
    bool delivered() const { return delivered_; }

    /// Takes a copy of the running command's document.
    void deliver(const rapidjson::Document& document);

    CallMonitor monitor;

    DataSet dataSet;
    CommandText command;  ///< the next one
    std::string languageCode;
    std::string languageFolder;

    std::list<rapidjson::Document> documents;  ///< delivered, in order; at most one per command
    std::vector<std::string> complaints;
    std::function<void(const std::string&)> onComplaint;

private:
    Session* previous_;
    bool delivered_ = false;
};

}  // namespace standin
