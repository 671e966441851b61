#pragma once

#include <vexel/base/VexelApi.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

namespace vexel::detail {

/** Types that follow from the component type of a vector. */
template <class T>
struct VecTraits {
    using Scalar = std::conditional_t<std::is_floating_point_v<T>, T, double>; ///< factor of products and quotients
    using Real = std::conditional_t<std::is_same_v<T, double>, double, float>; ///< result of length()
    /** Result of dot(): wide enough that products of integers do not overflow. */
    using Dot = std::conditional_t<std::is_floating_point_v<T>, T,
                                   std::conditional_t<sizeof(T) == 2, std::int32_t, std::int64_t>>;
};

/**
 * Everything that the vector classes have in common; `Derived` is the public class.
 *
 * A vector is exactly N components of type T in memory, so an array of vectors is an array of components.
 * A default-constructed vector is zero. Products with and quotients by a factor of integer vectors are computed in
 * double and cut to the component type.
 */
template <class Derived, class T, int N>
class VEXEL_API VecT {
public:
    using Component = T;
    using Scalar = typename VecTraits<T>::Scalar;
    using Real = typename VecTraits<T>::Real;
    using Dot = typename VecTraits<T>::Dot;
    static constexpr int Size = N;

    constexpr VecT() noexcept = default;

    /** One value for each component. */
    template <class... A, class = std::enable_if_t<sizeof...(A) == N && (std::is_convertible_v<A, T> && ...)>>
    constexpr VecT(A... components) noexcept : m_vec{static_cast<T>(components)...}
    {
    }

    constexpr explicit VecT(const T* components) noexcept { setValue(components); }

    /** Converts each component, as static_cast does. */
    template <class D, class U, class = std::enable_if_t<!std::is_same_v<T, U>>>
    constexpr explicit VecT(const VecT<D, U, N>& other) noexcept
    {
        setValue(other);
    }

    constexpr Derived& setValue(const T* components) noexcept
    {
        return forEach([&](int i) { m_vec[i] = components[i]; });
    }

    template <class... A, class = std::enable_if_t<sizeof...(A) == N && (std::is_convertible_v<A, T> && ...)>>
    constexpr Derived& setValue(A... components) noexcept
    {
        const T values[N] = {static_cast<T>(components)...};
        return setValue(values);
    }

    template <class D, class U>
    constexpr Derived& setValue(const VecT<D, U, N>& other) noexcept
    {
        return forEach([&](int i) { m_vec[i] = static_cast<T>(other[i]); });
    }

    constexpr const T* getValue() const noexcept { return m_vec; }

    template <class... A, class = std::enable_if_t<sizeof...(A) == N && (std::is_same_v<A, T> && ...)>>
    constexpr void getValue(A&... components) const noexcept
    {
        int i = 0;
        ((components = m_vec[i++]), ...);
    }

    constexpr T& operator[](int i) noexcept { return m_vec[i]; }
    constexpr const T& operator[](int i) const noexcept { return m_vec[i]; }

    constexpr Dot dot(const Derived& other) const noexcept
    {
        Dot sum = 0;
        for (int i = 0; i < N; ++i)
            sum += static_cast<Dot>(m_vec[i]) * static_cast<Dot>(other[i]);
        return sum;
    }

    /** Product of right-handed vectors; of three components only. */
    constexpr Derived cross(const Derived& o) const noexcept
    {
        static_assert(N == 3, "cross() needs three components");
        const VecT& a = *this;
        return Derived(a[1] * o[2] - a[2] * o[1], a[2] * o[0] - a[0] * o[2], a[0] * o[1] - a[1] * o[0]);
    }

    /** Sum of squares, in double so that it neither overflows nor vanishes for float components. */
    constexpr double sqrLength() const noexcept
    {
        double sum = 0;
        for (const T c : m_vec)
            sum += static_cast<double>(c) * static_cast<double>(c);
        return sum;
    }

    Real length() const noexcept { return static_cast<Real>(std::sqrt(sqrLength())); }

    /** Makes the length 1 and returns the length before; a vector of length 0 is left as it is. Not for integers. */
    Real normalize() noexcept
    {
        static_assert(std::is_floating_point_v<T>, "normalize() needs real components");
        const double before = std::sqrt(sqrLength());
        if (before > 0)
            forEach([&](int i) { m_vec[i] = static_cast<T>(m_vec[i] / before); });
        return static_cast<Real>(before);
    }

    constexpr Derived& negate() noexcept
    {
        return forEach([&](int i) { m_vec[i] = static_cast<T>(-m_vec[i]); });
    }

    /** True when the two points are at most `tolerance` apart (a distance, not squared; 0 asks for the same point). */
    constexpr bool equals(const Derived& other, Real tolerance) const noexcept
    {
        double sum = 0;
        for (int i = 0; i < N; ++i) {
            const double d = static_cast<double>(m_vec[i]) - static_cast<double>(other[i]);
            sum += d * d;
        }
        return sum <= static_cast<double>(tolerance) * static_cast<double>(tolerance);
    }

    constexpr Derived& operator+=(const Derived& o) noexcept
    {
        return forEach([&](int i) { m_vec[i] = static_cast<T>(m_vec[i] + o[i]); });
    }
    constexpr Derived& operator-=(const Derived& o) noexcept
    {
        return forEach([&](int i) { m_vec[i] = static_cast<T>(m_vec[i] - o[i]); });
    }
    constexpr Derived& operator*=(Scalar f) noexcept
    {
        return forEach([&](int i) { m_vec[i] = static_cast<T>(m_vec[i] * f); });
    }
    constexpr Derived& operator/=(Scalar f) noexcept
    {
        return forEach([&](int i) { m_vec[i] = static_cast<T>(m_vec[i] / f); });
    }
    constexpr Derived operator-() const noexcept
    {
        return make([this](int i) { return -m_vec[i]; });
    }

    friend constexpr Derived operator+(const Derived& a, const Derived& b) noexcept
    {
        return make([&](int i) { return a[i] + b[i]; });
    }
    friend constexpr Derived operator-(const Derived& a, const Derived& b) noexcept
    {
        return make([&](int i) { return a[i] - b[i]; });
    }
    friend constexpr Derived operator*(const Derived& a, Scalar f) noexcept
    {
        return make([&](int i) { return a[i] * f; });
    }
    friend constexpr Derived operator*(Scalar f, const Derived& a) noexcept { return a * f; }
    friend constexpr Derived operator/(const Derived& a, Scalar f) noexcept
    {
        return make([&](int i) { return a[i] / f; });
    }
    friend constexpr bool operator!=(const Derived& a, const Derived& b) noexcept { return !(a == b); }
    friend constexpr bool operator==(const Derived& a, const Derived& b) noexcept
    {
        for (int i = 0; i < N; ++i)
            if (a[i] != b[i])
                return false;
        return true;
    }

private:
    constexpr Derived& self() noexcept { return static_cast<Derived&>(*this); }
    constexpr const Derived& self() const noexcept { return static_cast<const Derived&>(*this); }

    // Written out by folding instead of a loop, which the compiler would partly vectorise and so slow down.
    template <class F>
    constexpr Derived& forEach(F f) noexcept
    {
        forEach(f, std::make_index_sequence<N>());
        return self();
    }
    template <class F, std::size_t... I>
    static constexpr void forEach(F& f, std::index_sequence<I...>) noexcept
    {
        (f(static_cast<int>(I)), ...);
    }

    /** The vector of the values of `f` for each index. */
    template <class F>
    static constexpr Derived make(F f) noexcept
    {
        return make(f, std::make_index_sequence<N>());
    }
    template <class F, std::size_t... I>
    static constexpr Derived make(F& f, std::index_sequence<I...>) noexcept
    {
        return Derived(static_cast<T>(f(static_cast<int>(I)))...);
    }

    T m_vec[N] = {};
};

/** Hash of a vector's components; vectors that compare equal (0 and -0) have the same hash. */
template <class Vec>
struct VecHash {
    std::size_t operator()(const Vec& v) const noexcept
    {
        std::size_t h = 0;
        for (int i = 0; i < Vec::Size; ++i) {
            h ^= std::hash<typename Vec::Component>()(v[i]) + 0x9e3779b97f4a7c15u + (h << 6) + (h >> 2);
        }
        return h;
    }
};

} // namespace vexel::detail
