// A callable passed down to a rule without owning it.
#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

namespace tessarin {

/// A non-owning reference to a callable, for rules that ask the shell a question while
/// they run (does a file exist, what time is it). It refers to the callable it was made
/// from, so it must not outlive it: take it as a parameter, never keep it.
///
/// std::function would do, but its empty-call exception makes the binary import
/// bad_function_call's destructor and vtable from the system's libc++, which iOS 12 to 14
/// do not export, so the bundle would not load there. This type has no empty call to
/// throw from: an empty reference is tested with its bool conversion first.
template <typename Signature>
class FunctionRef;

template <typename Result, typename... Args>
class FunctionRef<Result(Args...)> {
 public:
  FunctionRef() = default;
  FunctionRef(std::nullptr_t) {}

  template <typename Callable, typename = std::enable_if_t<!std::is_same_v<std::decay_t<Callable>, FunctionRef> &&
                                                           std::is_invocable_r_v<Result, Callable &, Args...>>>
  FunctionRef(Callable &&callable) {
    using Target = std::remove_reference_t<Callable>;
    if constexpr (std::is_function_v<Target>) {
      function_ = reinterpret_cast<void (*)()>(&callable);
      call_ = [](const FunctionRef &self, Args... args) -> Result {
        return reinterpret_cast<Target *>(self.function_)(std::forward<Args>(args)...);
      };
    } else {
      object_ = const_cast<void *>(static_cast<const void *>(std::addressof(callable)));
      call_ = [](const FunctionRef &self, Args... args) -> Result {
        return (*static_cast<Target *>(self.object_))(std::forward<Args>(args)...);
      };
    }
  }

  explicit operator bool() const { return call_ != nullptr; }

  Result operator()(Args... args) const { return call_(*this, std::forward<Args>(args)...); }

 private:
  void *object_ = nullptr;
  void (*function_)() = nullptr;
  Result (*call_)(const FunctionRef &, Args...) = nullptr;
};

}  // namespace tessarin
