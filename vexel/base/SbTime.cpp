#include <vexel/base/SbTime.h>

#include <vexel/base/SbString.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>

namespace {

/** One directive of SbTime::format(): how many microseconds its unit has, and the next larger unit (0: none). */
struct Unit {
    std::int64_t microseconds;
    std::int64_t within;
    int digits;
    char directive;
};

constexpr std::int64_t Second = 1000000;
constexpr Unit Units[] = {
    {86400 * Second, 0, 1, 'D'},
    {3600 * Second, 0, 1, 'H'},
    {60 * Second, 0, 1, 'M'},
    {Second, 0, 1, 'S'},
    {1000, 0, 1, 'I'},
    {1, 0, 1, 'U'},
    {3600 * Second, 86400 * Second, 2, 'h'},
    {60 * Second, 3600 * Second, 2, 'm'},
    {Second, 60 * Second, 2, 's'},
    {1000, Second, 3, 'i'},
    {1, Second, 6, 'u'},
};

/** Microseconds; lengths that no 64-bit count can hold are cut off. */
std::int64_t toMicroseconds(double seconds)
{
    constexpr double Limit = 9e18;
    return std::isnan(seconds) ? 0 : static_cast<std::int64_t>(std::round(std::clamp(seconds * 1e6, -Limit, Limit)));
}

} // namespace

SbTime SbTime::getTimeOfDay() noexcept
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

SbString SbTime::format(const char* pattern) const
{
    const std::int64_t signedLength = toMicroseconds(m_seconds);
    const std::int64_t length = std::abs(signedLength);
    std::string text = signedLength < 0 ? "-" : "";
    for (const char* c = pattern; *c; ++c) {
        if (*c != '%') {
            text += *c;
            continue;
        }
        const auto* unit =
            std::find_if(std::begin(Units), std::end(Units), [c](const Unit& u) { return u.directive == c[1]; });
        if (unit != std::end(Units)) {
            char digits[32];
            const std::int64_t part = unit->within ? length % unit->within : length;
            std::snprintf(digits, sizeof(digits), "%0*lld", unit->digits,
                          static_cast<long long>(part / unit->microseconds));
            text += digits;
            ++c;
        } else {
            text += '%';
            c += c[1] == '%';
        }
    }
    return SbString(std::string_view(text));
}

SbString SbTime::formatDate(const char* pattern) const
{
    const auto seconds = static_cast<std::time_t>(std::floor(static_cast<double>(toMicroseconds(m_seconds)) * 1e-6));
    std::tm local;
    if (!*pattern || !localtime_r(&seconds, &local))
        return SbString();
    // A blank in front tells an empty result from a buffer that is too small.
    const std::string padded = std::string(" ") + pattern;
    std::string text(256, '\0');
    std::size_t length;
    while ((length = std::strftime(text.data(), text.size(), padded.c_str(), &local)) == 0)
        text.resize(2 * text.size());
    return SbString(std::string_view(text).substr(1, length - 1));
}
