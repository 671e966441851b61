#include <vexel/base/SbName.h>

#include <vexel/base/SbString.h>
#include <vexel/base/detail/NameTable.h>

using vexel::detail::NameEntry;
using vexel::detail::NameTable;

static_assert(sizeof(SbName) == sizeof(void*));

SbName::SbName() noexcept : m_text(empty().m_text) {}

SbName::SbName(const char* utf8) : SbName(std::string_view(utf8 ? utf8 : "")) {}

SbName::SbName(std::string_view utf8) : m_text(NameTable::instance().intern(utf8)) {}

SbName::SbName(const SbString& text) : SbName(text.toQString()) {}

SbName::SbName(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    m_text = NameTable::instance().intern({utf8.constData(), static_cast<std::size_t>(utf8.size())});
}

QString SbName::toQString() const
{
    return QString::fromUtf8(m_text, static_cast<int>(getLength()));
}

std::size_t SbName::getLength() const noexcept
{
    return NameEntry::of(m_text).length;
}

std::size_t SbName::getHash() const noexcept
{
    return NameEntry::of(m_text).hash;
}

const SbName& SbName::empty() noexcept
{
    static const SbName name{std::string_view()};
    return name;
}
