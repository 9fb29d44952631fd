#pragma once

#include <utility>

namespace kel::win32 {

/// Does something at the end of the scope it stands in, such as giving back what the system has lent.
template <class Action>
class AtEnd {
public:
    explicit AtEnd(Action action) : Action_(std::move(action)) {}
    ~AtEnd() { Action_(); }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;

private:
    Action Action_;
};

}  // namespace kel::win32
