#include <vexel/fields/detail/ImageField.h>

#include <algorithm>
#include <charconv>

#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>

namespace {

std::size_t countTexels(const SbVec3i32& size)
{
    return static_cast<std::size_t>(size[0]) * static_cast<std::size_t>(size[1]) * static_cast<std::size_t>(size[2]);
}

// Answers whether a text of this length can hold so many numbers, so that a false size allocates nothing.
bool canHold(std::ptrdiff_t bytes, const SbVec3i32& size)
{
    double texels = 1;
    for (int i = 0; i < 3; ++i)
        texels *= size[i];
    return texels <= static_cast<double>(bytes);
}

} // namespace

void SoImageField::setImage(const SbVec3i32& size, int components, const std::uint8_t* bytes)
{
    const bool isImage = size[0] > 0 && size[1] > 0 && size[2] > 0 && components >= 1 && components <= 4;
    m_size = isImage ? size : SbVec3i32();
    m_components = isImage ? components : 0;
    const std::size_t count = isImage ? countTexels(size) * static_cast<std::size_t>(components) : 0;
    if (bytes)
        m_bytes.assign(bytes, bytes + count);
    else
        m_bytes.assign(count, 0);
    valueChanged();
}

bool SoImageField::isSame(const SoField& other) const
{
    if (other.getTypeId() != getTypeId())
        return false;
    const auto& image = static_cast<const SoImageField&>(other);
    return image.getBytes() == getBytes() && image.m_size == m_size && image.m_components == m_components;
}

void SoImageField::copyFrom(const SoField& other)
{
    if (&other == this || other.getTypeId() != getTypeId())
        return;
    const auto& image = static_cast<const SoImageField&>(other);
    setImage(image.getStoredSize(), image.m_components, image.m_bytes.data());
}

bool SoImageField::readValue(SoInput& in)
{
    SbVec3i32 size(1, 1, 1);
    int components = 0;
    for (int i = 0; i < m_dimensions; ++i) {
        if (!in.readNumber(size[i]))
            return false;
    }
    if (!in.readNumber(components))
        return false;
    if (std::min({size[0], size[1], size[2]}) < 0 || components < 0 || components > 4)
        return in.postError("sizes that are not negative and 0 to 4 components in front of the pixels");
    if (!canHold(in.text().end() - in.text().position(), size))
        return in.postError("as many pixels as the size says");

    std::vector<std::uint8_t> bytes;
    const std::size_t count = components > 0 ? countTexels(size) : 0;
    bytes.reserve(count * static_cast<std::size_t>(components));
    for (std::size_t i = 0; i < count; ++i) {
        std::uint32_t texel = 0;
        if (!in.readNumber(texel))
            return false;
        for (int shift = 8 * (components - 1); shift >= 0; shift -= 8)
            bytes.push_back(static_cast<std::uint8_t>(texel >> shift));
        in.updateProgress();
    }
    setImage(size, components, bytes.data());
    return true;
}

void SoImageField::writeValue(SoOutput& out) const
{
    const SbVec3i32 size = getStoredSize();
    for (int i = 0; i < m_dimensions; ++i) {
        out.writeNumber(size[i]);
        out.write(' ');
    }
    out.writeNumber(m_components);
    constexpr std::size_t PerLine = 8;
    const auto step = static_cast<std::size_t>(m_components);
    for (std::size_t i = 0; i < m_bytes.size(); i += step) {
        if (i / step % PerLine == 0)
            out.writeNewLine();
        else
            out.write(' ');
        std::uint32_t texel = 0;
        for (std::size_t k = 0; k < step; ++k)
            texel = texel << 8 | m_bytes[i + k];
        char digits[8];
        const auto end = std::to_chars(digits, digits + sizeof digits, texel, 16);
        out.write("0x");
        out.write({digits, static_cast<std::size_t>(end.ptr - digits)});
        out.flushWhenFull();
    }
}
