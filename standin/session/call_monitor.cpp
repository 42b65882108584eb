#include "standin/session/call_monitor.h"

#include <ostream>
#include <utility>

namespace standin {

void CallMonitor::failAtCall(long n, std::function<void()> raise)
{
    failAt_ = fallibleCount_ + n;
    raise_ = std::move(raise);
}

void CallMonitor::noteBreach(std::string_view operation, std::string_view rule) noexcept
{
    if (breach_.empty()) {
        breach_.append(operation).append(": ").append(rule);
    }
}

void CallMonitor::endCommand()
{
    if (const auto alive = ledger_.anyOfModule()) {
        noteBreach(*alive, "a host object is still alive after the command");
    }
}

void CallMonitor::writeTrace(const char* operation, const std::string& arguments)
{
    *trace_ << operation << '\t' << arguments << '\n';
}

void CallMonitor::countFallible()
{
    ++fallibleCount_;
    if (!breach_.empty()) {
        throw ContractBreach(breach_);
    }
    if (fallibleCount_ == failAt_) {
        raise_();
    }
}

}  // namespace standin
