#include "standin/border/host_call.h"

#include <string>

namespace standin {

HostCall::HostCall(Destructor, const void* self, const char* operation) noexcept
    : operation_(operation)
{
    if (CallMonitor* monitor = crossing_.monitor()) {
        const auto maker = monitor->ledger().remove(self);
        if (!maker) {
            monitor->noteBreach(operation, "the object is not alive");
        } else if (*maker == Side::Module) {
            announce();
        }
    }
}

HostCall::HostCall(LoadGetter, const char* operation)
    : operation_(operation)
{
    if (isFromModule()) {
        announce();
    }
}

void HostCall::creates(const void* object)
{
    if (CallMonitor* monitor = crossing_.monitor()) {
        monitor->ledger().add(object, operation_, crossing_.from());
    }
}

void HostCall::lends(const void* object)
{
    if (CallMonitor* monitor = crossing_.monitor()) {
        monitor->ledger().add(object, operation_, Side::Host);
    }
}

void HostCall::retire(const void* object)
{
    if (CallMonitor* monitor = crossing_.monitor()) {
        monitor->ledger().remove(object);
    }
}

void HostCall::fail(std::string_view rule) const
{
    noteBreach(rule);
    throw ContractBreach(std::string(operation_) + ": " + std::string(rule));
}

bool HostCall::isAlive(const void* object) const
{
    const CallMonitor* monitor = crossing_.monitor();
    return monitor == nullptr || monitor->ledger().isAlive(object);
}

void HostCall::requireAlive(const void* object, const char* what) const
{
    if (object == nullptr || !isAlive(object)) {
        fail(std::string(what) + " is not alive");
    }
}

void HostCall::noteBreach(std::string_view rule) const noexcept
{
    if (CallMonitor* monitor = crossing_.monitor()) {
        monitor->noteBreach(operation_, rule);
    }
}

}  // namespace standin
