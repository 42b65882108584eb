// How a host operation announces itself to the monitor: a `HostCall` at the top of its body.
//
//     void Table::hide_title(bool hide)
//     {
//         HostCall call(this, "Table::hide_title", hide);
//         ...
//
// What a host operation calls on other host objects is the host's own affair and neither counted nor traced.
#pragma once

#include "standin/border/crossing.h"
#include "standin/border/trace_arguments.h"

#include <string_view>

namespace standin {

/// `operation` is a literal: its class and its name, "Table::hide_title".
class HostCall {
public:
    /// An operation of `self`, which must be alive; null for a free function or a value without identity. `arguments`
    /// are those that the module gives, not those that the operation fills in.
    /// @throws ContractBreach; what a test has ordered
    template <class... Arguments>
    HostCall(const void* self, const char* operation, const Arguments&... arguments)
        : operation_(operation)
    {
        if (crossing_.isFromModule()) {
            announce(arguments...);
            crossing_.monitor()->countFallible();
            require(self == nullptr || isAlive(self), "called on an object that is not alive");
        }
    }

    struct Constructor {};
    struct Destructor {};
    struct LoadGetter {};

    /// The construction of an object, which `creates` completes.
    template <class... Arguments>
    HostCall(Constructor, const char* operation, const Arguments&... arguments)
        : HostCall(nullptr, operation, arguments...)
    {
    }

    /// The destruction of `self`; traced when the module had made it, whoever deletes it. Never throws.
    HostCall(Destructor, const void* self, const char* operation) noexcept;

    /// A getter that is called while the library is loaded. Never throws.
    HostCall(LoadGetter, const char* operation);

    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;

    /// Enters the object that this constructor has made into the ledger.
    void creates(const void* object);

    /// Enters an object of the host's own that the module may use until it is retired.
    void lends(const void* object);
    void retire(const void* object);

    /// @throws ContractBreach  always, naming the operation
    [[noreturn]] void fail(std::string_view rule) const;

    /// Fails unless `kept`. For a rule in constant words; where words must be put together, test and `fail`.
    void require(bool kept, std::string_view rule) const
    {
        if (!kept) {
            fail(rule);
        }
    }

    /// True for a call from the module, false for one from another host operation.
    bool isFromModule() const { return crossing_.isFromModule(); }

    /// True without a session: then nothing is known of any object.
    bool isAlive(const void* object) const;

    /// Requires an object given as an argument to be alive.
    void requireAlive(const void* object, const char* what) const;

    /// The same as a `require` that is not kept, for destructors.
    void noteBreach(std::string_view rule) const noexcept;

private:
    /// Counts and traces the call. There is a monitor.
    template <class... Arguments>
    void announce(const Arguments&... arguments)
    {
        CallMonitor& monitor = *crossing_.monitor();
        ++monitor.callCount_;
        if (monitor.tracing()) {
            monitor.writeTrace(operation_, traceArguments(arguments...));
        }
    }

    const char* operation_ = nullptr;
    Crossing crossing_{Side::Host};
};

}  // namespace standin
