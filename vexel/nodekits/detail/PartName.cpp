#include <vexel/nodekits/detail/PartName.h>

#include <charconv>

PartName::PartName(std::string_view text)
{
    const std::size_t point = text.find('.');
    const std::string_view head = text.substr(0, point);
    m_head = SbName(head);
    if (point != std::string_view::npos)
        m_rest = SbName(text.substr(point + 1));
    const std::size_t bracket = head.find('[');
    m_first = SbName(head.substr(0, bracket));
    if (bracket == std::string_view::npos)
        return;
    // An index that is none names no part.
    const auto result = std::from_chars(head.data() + bracket + 1, head.data() + head.size(), m_index);
    if (result.ec != std::errc() || m_index < 0 || result.ptr + 1 != head.data() + head.size() || *result.ptr != ']')
        m_first = SbName();
}
