#pragma once

#include <vexel/base/VexelApi.h>

#include <cmath>
#include <cstdint>

class SbString;

/** Point in time or length of time in seconds; points in time count from the start of 1970 (UTC). */
class VEXEL_API SbTime {
public:
    constexpr SbTime() noexcept = default;
    constexpr SbTime(double seconds) noexcept : m_seconds(seconds) {}
    constexpr SbTime(std::int64_t seconds, long microseconds) noexcept
        : m_seconds(static_cast<double>(seconds) + 1e-6 * static_cast<double>(microseconds))
    {
    }

    static constexpr SbTime zero() noexcept { return {}; }
    /** The present time. */
    static SbTime getTimeOfDay() noexcept;
    void setToTimeOfDay() noexcept { *this = getTimeOfDay(); }

    constexpr void setValue(double seconds) noexcept { m_seconds = seconds; }
    constexpr double getValue() const noexcept { return m_seconds; }
    constexpr void setMsecValue(double milliseconds) noexcept { m_seconds = 1e-3 * milliseconds; }
    constexpr double getMsecValue() const noexcept { return 1e3 * m_seconds; }

    /**
     * A length of time as text. Directives: %D days; %H hours, %M minutes, %S seconds, %I milliseconds, %U microseconds
     * of the whole length; %h %m %s %i %u the same within the next larger unit, with leading zeros; %% a percent sign.
     * A negative length starts with a minus sign; anything else is copied.
     */
    SbString format(const char* pattern = "%S.%i") const;
    /** A point in time as local date and time, with the directives of strftime. */
    SbString formatDate(const char* pattern = "%Y-%m-%d %H:%M:%S") const;

    constexpr SbTime& operator+=(SbTime t) noexcept { return *this = m_seconds + t.m_seconds; }
    constexpr SbTime& operator-=(SbTime t) noexcept { return *this = m_seconds - t.m_seconds; }
    constexpr SbTime& operator*=(double f) noexcept { return *this = m_seconds * f; }
    constexpr SbTime& operator/=(double f) noexcept { return *this = m_seconds / f; }
    constexpr SbTime operator-() const noexcept { return -m_seconds; }

    friend constexpr SbTime operator+(SbTime a, SbTime b) noexcept { return a += b; }
    friend constexpr SbTime operator-(SbTime a, SbTime b) noexcept { return a -= b; }
    friend constexpr SbTime operator*(SbTime t, double f) noexcept { return t *= f; }
    friend constexpr SbTime operator*(double f, SbTime t) noexcept { return t *= f; }
    friend constexpr SbTime operator/(SbTime t, double f) noexcept { return t /= f; }
    friend constexpr double operator/(SbTime a, SbTime b) noexcept { return a.m_seconds / b.m_seconds; }
    /** What is left of `a` after whole multiples of `b`. */
    friend SbTime operator%(SbTime a, SbTime b) noexcept { return std::fmod(a.m_seconds, b.m_seconds); }

    friend constexpr bool operator==(SbTime a, SbTime b) noexcept { return a.m_seconds == b.m_seconds; }
    friend constexpr bool operator!=(SbTime a, SbTime b) noexcept { return a.m_seconds != b.m_seconds; }
    friend constexpr bool operator<(SbTime a, SbTime b) noexcept { return a.m_seconds < b.m_seconds; }
    friend constexpr bool operator>(SbTime a, SbTime b) noexcept { return a.m_seconds > b.m_seconds; }
    friend constexpr bool operator<=(SbTime a, SbTime b) noexcept { return a.m_seconds <= b.m_seconds; }
    friend constexpr bool operator>=(SbTime a, SbTime b) noexcept { return a.m_seconds >= b.m_seconds; }

private:
    double m_seconds = 0;
};
