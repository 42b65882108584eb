// The one hook behind every host operation: it counts the calls, traces them, throws where a test says so, and keeps
// the ledger of host objects that are alive.
#pragma once

#include "standin/session/object_ledger.h"

#include <functional>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>

namespace standin {

/// The module did something that the contract forbids. `what()` names the operation and the rule.
class ContractBreach : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// Watches what crosses the border between the module and the host in one session.
class CallMonitor {
public:
    /// Where every call is written, one line each; null: nowhere. Not owned.
    void traceTo(std::ostream* out) { trace_ = out; }

    /// Has the n-th call that may fail (from 1, counted from now on) run `raise` in place of its work. Destructors and
    /// the getters called at load never fail.
    void failAtCall(long n, std::function<void()> raise);

    long callCount() const { return callCount_; }          ///< all calls
    long fallibleCount() const { return fallibleCount_; }  ///< those that may fail

    /// True while a host operation runs, false in the module, callbacks from the host included.
    bool insideHost() const { return running_ == Side::Host; }

    ObjectLedger& ledger() { return ledger_; }
    const ObjectLedger& ledger() const { return ledger_; }

    /// The first breach of the contract, empty when there was none. Once there is one, every further call that may fail
    /// raises it again: nothing that comes after a breach can be trusted.
    const std::string& breach() const { return breach_; }

    /// Notes a breach without raising it, for places that must not throw.
    void noteBreach(std::string_view operation, std::string_view rule) noexcept;

    /// To be called when a command is over: a host object that the module still holds is a breach.
    void endCommand();

private:
    friend class Crossing;
    friend class HostCall;

    bool tracing() const { return trace_ != nullptr; }
    void writeTrace(const char* operation, const std::string& arguments);
    void countFallible();

    std::ostream* trace_ = nullptr;
    long callCount_ = 0;
    long fallibleCount_ = 0;
    long failAt_ = 0;
    std::function<void()> raise_;
    Side running_ = Side::Module;
    std::string breach_;
    ObjectLedger ledger_;
};

}  // namespace standin
