// A reference to something callable: two words, no allocation. Must not outlive what it refers to.
#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace kor {

template <class Signature>
class FunctionRef;

template <class Callable, class Reference, class Result, class... Args>
concept Referable =
    !std::is_same_v<std::remove_cvref_t<Callable>, Reference> && std::is_invocable_r_v<Result, Callable &, Args...>;

template <class Result, class... Args>
class FunctionRef<Result(Args...)> {
  public:
    template <Referable<FunctionRef, Result, Args...> Callable>
    FunctionRef(Callable &&callable)
    {
        using Target = std::remove_reference_t<Callable>;
        // An object pointer cannot hold a function on every machine, but on all that have shared libraries it can.
        if constexpr (std::is_function_v<Target>)
            object_ = reinterpret_cast<void *>(std::addressof(callable));
        else
            object_ = const_cast<void *>(static_cast<const void *>(std::addressof(callable)));
        call_ = [](void *object, Args... args) -> Result {
            auto &target = *reinterpret_cast<Target *>(object);
            if constexpr (std::is_void_v<Result>)
                target(std::forward<Args>(args)...);
            else
                return target(std::forward<Args>(args)...);
        };
    }

    Result operator()(Args... args) const { return call_(object_, std::forward<Args>(args)...); }

  private:
    void *object_;
    Result (*call_)(void *, Args...);
};

} // namespace kor
