#include "standin/border/host_call.h"

#include <utility>

namespace standin {

HostCall::HostCall(Destructor, const void* self, const char* operation) noexcept
    : operation_(operation)
{
    if (monitor_ == nullptr) {
        return;
    }
    const auto maker = monitor_->ledger().remove(self);
    if (!maker) {
        monitor_->noteBreach(operation, "the object is not alive");
    }
    counted_ = maker == Maker::Guest;
    announce();
}

void HostCall::creates(const void* object, const char* className)
{
    if (monitor_ != nullptr) {
        monitor_->ledger().add(object, className, counted_ ? Maker::Guest : Maker::Host);
    }
}

void HostCall::lends(const void* object, const char* className)
{
    if (monitor_ != nullptr) {
        monitor_->ledger().add(object, className, Maker::Host);
    }
}

void HostCall::retire(const void* object)
{
    if (monitor_ != nullptr) {
        monitor_->ledger().remove(object);
    }
}

void HostCall::fail(std::string_view rule) const
{
    noteBreach(rule);
    throw ContractBreach(std::string(operation_) + ": " + std::string(rule));
}

void HostCall::requireAlive(const void* object, const char* what) const
{
    if (object == nullptr || !isAlive(object)) {
        fail(std::string(what) + " is not alive");
    }
}

void HostCall::noteBreach(std::string_view rule) const noexcept
{
    if (monitor_ != nullptr) {
        monitor_->noteBreach(operation_, rule);
    }
}

GuestCall::GuestCall()
{
    if (monitor_ != nullptr) {
        depth_ = std::exchange(monitor_->depth_, 0);
    }
}

GuestCall::~GuestCall()
{
    if (monitor_ != nullptr) {
        monitor_->depth_ = depth_;
    }
}

}  // namespace standin
