// Which side of the border runs while a call lasts.
#pragma once

#include "standin/session/session.h"

#include <utility>

namespace standin {

/// Has the border crossed for as long as it lives; then, whatever has happened meanwhile, the side that ran before runs
/// again. A host operation that another one calls crosses from the host into the host. Without a session nobody keeps
/// watch.
class Crossing {
public:
    explicit Crossing(Side to) noexcept
    {
        if (Session* session = Session::running()) {
            monitor_ = &session->monitor;
            from_ = std::exchange(monitor_->running_, to);
        }
    }

    ~Crossing()
    {
        if (monitor_ != nullptr) {
            monitor_->running_ = from_;
        }
    }

    Crossing(const Crossing&) = delete;
    Crossing& operator=(const Crossing&) = delete;

    /// The monitor of the session that ran at first, or null.
    CallMonitor* monitor() const { return monitor_; }

    /// The side that called. Of no meaning without a monitor.
    Side from() const { return from_; }

    /// True when the module called and somebody watches.
    bool isFromModule() const { return monitor_ != nullptr && from_ == Side::Module; }

private:
    CallMonitor* monitor_ = nullptr;
    Side from_ = Side::Module;
};

}  // namespace standin
