// How a host operation announces itself to the monitor: a `HostCall` at the top of its body.
//
//     void Table::hide_title(bool hide)
//     {
//         HostCall call(this, "Table::hide_title", hide);
//         ...
//
// What a host operation calls on other host objects is the host's own affair and neither counted nor traced.
#pragma once

#include "standin/border/trace_arguments.h"
#include "standin/session/call_monitor.h"

#include <string>
#include <string_view>

namespace standin {

class HostCall {
public:
    /// An operation of `self`, which must be alive; null for a free function or a value without identity. `arguments`
    /// are those that the module gives, not those that the operation fills in.
    /// @throws ContractBreach; what a test has ordered
    template <class... Arguments>
    HostCall(const void* self, const char* operation, const Arguments&... arguments)
        : operation_(operation)
    {
        announce(arguments...);
        if (counted_) {
            monitor_->countFallible();
            require(self == nullptr || monitor_->ledger().isAlive(self), "called on an object that is not alive");
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
    HostCall(LoadGetter, const char* operation)
        : operation_(operation)
    {
        announce();
    }

    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;

    /// Enters a new object into the ledger.
    void creates(const void* object, const char* className);

    /// Enters an object of the host's own that the module may use until it is retired.
    void lends(const void* object, const char* className);
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
    bool isFromGuest() const { return fromGuest_; }

    bool isAlive(const void* object) const { return monitor_ == nullptr || monitor_->ledger().isAlive(object); }

    /// Requires an object given as an argument to be alive.
    void requireAlive(const void* object, const char* what) const;

    /// The same as a `require` that is not kept, for destructors.
    void noteBreach(std::string_view rule) const noexcept;

private:
    /// Whatever happens to the call, the monitor knows when the host has been left again.
    class Depth {
    public:
        explicit Depth(CallMonitor* monitor)
            : watched_(monitor)
        {
            if (watched_ != nullptr) {
                ++watched_->depth_;
            }
        }
        ~Depth()
        {
            if (watched_ != nullptr) {
                --watched_->depth_;
            }
        }
        Depth(const Depth&) = delete;
        Depth& operator=(const Depth&) = delete;

    private:
        CallMonitor* watched_;
    };

    template <class... Arguments>
    void announce(const Arguments&... arguments)
    {
        if (counted_) {
            ++monitor_->callCount_;
            if (monitor_->tracing()) {
                monitor_->writeTrace(operation_, traceArguments(arguments...));
            }
        }
    }

    CallMonitor* monitor_ = CallMonitor::current();
    bool fromGuest_ = monitor_ != nullptr && !monitor_->insideHost();
    bool counted_ = fromGuest_;  ///< of a destructor, whether the module had made the object
    Depth depth_{monitor_};
    const char* operation_ = nullptr;
};

/// A call from the host back into the module: until it ends, the module is what runs.
class GuestCall {
public:
    GuestCall();
    ~GuestCall();
    GuestCall(const GuestCall&) = delete;
    GuestCall& operator=(const GuestCall&) = delete;

private:
    CallMonitor* monitor_ = CallMonitor::current();
    int depth_ = 0;
};

}  // namespace standin
