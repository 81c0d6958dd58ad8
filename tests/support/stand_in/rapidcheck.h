#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <functional>
#include <iterator>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

/// Stands in for the library of this name where that is not to be had: properties are tried with as
/// many draws, the same in each run, and what fails is not made smaller.
namespace rc {

inline std::mt19937_64& dice() {
    static std::mt19937_64 engine;
    return engine;
}

template <class T>
struct Gen {
    std::function<T()> draw;
    T operator*() const { return draw(); }
};

namespace gen {

/// From `least` up to `end`.
template <class T>
Gen<T> inRange(T least, T end) {
    return {[=] {
        return static_cast<T>(std::uniform_int_distribution<long long>(least, end - 1LL)(dice()));
    }};
}

template <class C>
auto elementOf(const C& all) {
    using T = std::remove_cvref_t<decltype(*std::begin(all))>;
    return Gen<T>{[all] {
        return *std::next(std::begin(all), *inRange<std::ptrdiff_t>(0, std::ssize(all)));
    }};
}

template <class T, class... More>
Gen<T> element(T first, More... more) {
    return elementOf(std::vector<T>{first, static_cast<T>(more)...});
}

template <class C, class T>
Gen<C> container(std::size_t count, Gen<T> of) {
    return {[=] {
        C all;
        while (all.size() < count)
            all.push_back(*of);
        return all;
    }};
}

template <class C, class T>
Gen<C> container(Gen<T> of) {
    constexpr std::size_t most = 100;
    return {[=] { return *container<C>(*inRange<std::size_t>(0, most), of); }};
}

template <class T>
Gen<T> arbitrary() {
    return {[]() -> T {
        if constexpr (std::is_integral_v<T>) {
            using Limits = std::numeric_limits<T>;
            return static_cast<T>(
                std::uniform_int_distribution<long long>(Limits::min(), Limits::max())(dice()));
        } else if constexpr (std::is_floating_point_v<T>) {
            return std::ldexp(std::uniform_real_distribution<T>(-1, 1)(dice()), *inRange(-60, 60));
        } else {
            return *container<T>(arbitrary<typename T::value_type>());
        }
    }};
}

template <class T, class F>
auto map(Gen<T> of, F change) {
    return Gen<decltype(change(*of))>{[=] { return change(*of); }};
}

} // namespace gen

/// Ends a try, whether it failed or does not count.
struct Ended {};

inline void tryOften(const std::function<void()>& property) {
    for (int left = 100; left > 0 && !testing::Test::HasFailure(); --left)
        try {
            property();
        } catch (const Ended&) {
        }
}

template <class Argument>
void tryOften(void (*property)(Argument)) {
    tryOften([=] { property(*gen::arbitrary<std::remove_cvref_t<Argument>>()); });
}

inline void require(bool holds, const char* what) {
    if (holds)
        return;
    ADD_FAILURE() << what;
    throw Ended();
}

} // namespace rc

#define RC_ASSERT(...) rc::require(static_cast<bool>(__VA_ARGS__), #__VA_ARGS__)
#define RC_PRE(...) (static_cast<bool>(__VA_ARGS__) ? void() : throw rc::Ended())
