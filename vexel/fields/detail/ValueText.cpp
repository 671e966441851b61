#include <vexel/fields/detail/ValueText.h>

#include <algorithm>
#include <cmath>

namespace {

template <int N>
struct NumberTexts {
    NumberTexts(const float (&values)[N], int digits)
    {
        for (int i = 0; i < N; ++i) {
            const float value = values[i] == 0.0f ? 0.0f : values[i];
            const auto end = std::to_chars(characters[i], characters[i] + sizeof characters[i], value,
                                           std::chars_format::general, digits);
            lengths[i] = static_cast<std::size_t>(end.ptr - characters[i]);
            std::from_chars(characters[i], end.ptr, numbers[i]);
        }
    }
    void writeTo(SoOutput& out) const
    {
        for (int i = 0; i < N; ++i) {
            if (i > 0)
                out.write(' ');
            out.write({characters[i], lengths[i]});
        }
    }

    char characters[N][32];
    std::size_t lengths[N];
    float numbers[N];
};

template <int N>
bool areSame(const float (&a)[N], const float (&b)[N])
{
    return std::equal(std::begin(a), std::end(a), std::begin(b));
}

// Axis and angle, or normal and distance, do not always come back from a unit quaternion or unit normal to the last
// digit. The writer takes the fewest digits that reading turns into the same value; where there are none, the nearest
// numbers of six digits that reading and writing reproduce. So a file that is read and written again is the same.
template <int N, class Read>
void writeReproducible(SoOutput& out, const float (&start)[N], Read&& readBack)
{
    constexpr int FewestDigits = 6;
    constexpr int MostDigits = 9;
    float values[N];
    for (int digits = FewestDigits; digits <= MostDigits; ++digits) {
        const NumberTexts<N> texts(start, digits);
        readBack(texts.numbers, values);
        if (areSame(values, start)) {
            texts.writeTo(out);
            return;
        }
    }
    constexpr int MostRounds = 20;
    NumberTexts<N> texts(start, FewestDigits);
    for (int round = 0; round < MostRounds; ++round) {
        readBack(texts.numbers, values);
        const NumberTexts<N> again(values, FewestDigits);
        const bool isStable = areSame(again.numbers, texts.numbers);
        texts = again;
        if (isStable)
            break;
    }
    texts.writeTo(out);
}

// In double, and from the half angle's sine, so that small angles keep their digits.
void axisAndAngle(const SbRotation& rotation, float (&values)[4])
{
    const float* q = rotation.getValue();
    const double sign = q[3] < 0 ? -1 : 1;
    const double sine = std::sqrt(double(q[0]) * q[0] + double(q[1]) * q[1] + double(q[2]) * q[2]);
    if (sine == 0) {
        values[0] = values[1] = values[3] = 0;
        values[2] = 1;
        return;
    }
    for (int i = 0; i < 3; ++i)
        values[i] = static_cast<float>(sign * q[i] / sine);
    values[3] = static_cast<float>(2 * std::atan2(sine, sign * q[3]));
}

} // namespace

bool readText(SoInput& in, bool& value)
{
    const std::string_view word = in.text().readWord();
    if (word == "TRUE" || word == "1")
        value = true;
    else if (word == "FALSE" || word == "0")
        value = false;
    else
        return in.postErrorAt(word.data(), "expected TRUE or FALSE");
    return true;
}

bool readText(SoInput& in, SbString& value)
{
    std::string text;
    if (!in.readText(text))
        return false;
    value = SbString(std::string_view(text));
    return true;
}

bool readText(SoInput& in, SbName& value)
{
    std::string text;
    if (!in.readText(text))
        return false;
    value = SbName(std::string_view(text));
    return true;
}

bool readText(SoInput& in, SbTime& value)
{
    double seconds = 0;
    if (!in.readNumber(seconds))
        return false;
    value = SbTime(seconds);
    return true;
}

bool readText(SoInput& in, SbRotation& value)
{
    float numbers[4];
    for (float& number : numbers) {
        if (!in.readNumber(number))
            return false;
    }
    value.setValue(SbVec3f(numbers), numbers[3]);
    return true;
}

bool readText(SoInput& in, SbPlane& value)
{
    float numbers[4];
    for (float& number : numbers) {
        if (!in.readNumber(number))
            return false;
    }
    value = SbPlane(SbVec3f(numbers), numbers[3]);
    return true;
}

bool readText(SoInput& in, SbMatrix& value)
{
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            if (!in.readNumber(value[row][column]))
                return false;
        }
    }
    return true;
}

void writeText(SoOutput& out, const bool& value)
{
    out.write(value ? "TRUE" : "FALSE");
}

void writeText(SoOutput& out, const SbString& value)
{
    const QByteArray bytes = value.toUtf8();
    out.writeQuoted({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void writeText(SoOutput& out, const SbName& value)
{
    const std::string_view text = value.getView();
    if (!text.empty() && std::all_of(text.begin(), text.end(), TextReader::isWordCharacter))
        out.write(text);
    else
        out.writeQuoted(text);
}

void writeText(SoOutput& out, const SbTime& value)
{
    out.writeNumber(value.getValue());
}

void writeText(SoOutput& out, const SbRotation& value)
{
    float start[4];
    axisAndAngle(value, start);
    writeReproducible(out, start, [](const float(&numbers)[4], float(&values)[4]) {
        axisAndAngle(SbRotation(SbVec3f(numbers), numbers[3]), values);
    });
}

void writeText(SoOutput& out, const SbPlane& value)
{
    const auto components = [](const SbPlane& plane, float(&values)[4]) {
        std::copy_n(plane.getNormal().getValue(), 3, values);
        values[3] = plane.getDistanceFromOrigin();
    };
    float start[4];
    components(value, start);
    writeReproducible(out, start, [&](const float(&numbers)[4], float(&values)[4]) {
        components(SbPlane(SbVec3f(numbers), numbers[3]), values);
    });
}

void writeText(SoOutput& out, const SbMatrix& value)
{
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            if (row + column > 0)
                out.write(' ');
            out.writeNumber(value[row][column]);
        }
    }
}
