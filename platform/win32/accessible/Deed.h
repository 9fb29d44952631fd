#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace kel::win32 {

template <class Signature>
class Deed;

/// Something to be done by a function that is called with it, and not after: it keeps nothing of its own.
template <class Result, class... Arguments>
class Deed<Result(Arguments...)> {
public:
    template <class Act>
    requires(!std::is_same_v<std::remove_cvref_t<Act>, Deed>) Deed(Act&& act)
        : Act_(const_cast<void*>(static_cast<const void*>(std::addressof(act)))),
          Run_([](void* kept, Arguments... arguments) -> Result {
              return (*static_cast<std::remove_reference_t<Act>*>(kept))(std::forward<Arguments>(arguments)...);
          }) {}

    Result operator()(Arguments... arguments) const { return Run_(Act_, std::forward<Arguments>(arguments)...); }

private:
    void* Act_;
    Result (*Run_)(void*, Arguments...);
};

}  // namespace kel::win32
