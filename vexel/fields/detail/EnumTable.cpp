#include <vexel/fields/detail/EnumTable.h>

#include <vexel/base/SbName.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>

bool EnumTable::find(const SbName& name, int& value) const
{
    for (int i = 0; i < m_count; ++i) {
        if (name == m_entries[i].name) {
            value = m_entries[i].value;
            return true;
        }
    }
    return false;
}

const char* EnumTable::nameOf(int value) const
{
    for (int i = 0; i < m_count; ++i) {
        if (m_entries[i].value == value)
            return m_entries[i].name;
    }
    return nullptr;
}

namespace {

std::string mnemonicsOf(const EnumTable& table)
{
    std::string message = "expected ";
    for (int i = 0; i < table.getNum(); ++i)
        message.append(i == 0 ? "" : (i + 1 < table.getNum() ? ", " : " or ")).append(table[i].name);
    return table.getNum() > 0 ? message : "expected a number";
}

} // namespace

bool EnumTable::readEnum(SoInput& in, int& value) const
{
    if (in.text().readNumber(value))
        return true;
    const char* place = (in.text().skipSpace(), in.text().position());
    const std::string_view word = in.text().readWord();
    return find(SbName(word), value) || in.postErrorAt(place, mnemonicsOf(*this));
}

void EnumTable::writeEnum(SoOutput& out, int value) const
{
    if (const char* name = nameOf(value))
        out.write(name);
    else
        out.writeNumber(value);
}

int EnumTable::allFlags() const
{
    int all = 0;
    for (int i = 0; i < m_count; ++i)
        all |= m_entries[i].value;
    return all;
}

bool EnumTable::readFlag(SoInput& in, int& value) const
{
    const char* place = (in.text().skipSpace(), in.text().position());
    int number = 0;
    if (in.text().readNumber(number)) {
        value |= number;
        return true;
    }
    const std::string_view word = in.text().readWord();
    int flag = 0;
    if (find(SbName(word), flag))
        value |= flag;
    else if (word == "ALL")
        value |= allFlags();
    else if (word != "NONE")
        return in.postErrorAt(place, mnemonicsOf(*this));
    return true;
}

bool EnumTable::readMask(SoInput& in, int& value) const
{
    int mask = 0;
    if (!in.text().accept('(')) {
        if (!readFlag(in, mask))
            return false;
    } else if (!in.text().accept(')')) {
        do {
            if (!readFlag(in, mask))
                return false;
        } while (in.text().accept('|'));
        if (!in.text().accept(')'))
            return in.postError("\"|\" or \")\" in a bit mask");
    }
    value = mask;
    return true;
}

void EnumTable::writeMask(SoOutput& out, int value) const
{
    if (const char* name = nameOf(value)) {
        out.write(name);
        return;
    }
    if (value == 0 || (m_count > 0 && value == allFlags())) {
        out.write(value == 0 ? "NONE" : "ALL");
        return;
    }
    // Single flags first; what no mnemonic covers is written as a number.
    int rest = value;
    const char* separator = "(";
    for (int i = 0; i < m_count; ++i) {
        const int flag = m_entries[i].value;
        if (flag != 0 && (flag & (flag - 1)) == 0 && (rest & flag) != 0) {
            out.write(separator);
            out.write(' ');
            out.write(m_entries[i].name); // NOLINT(clang-analyzer-core.NonNullParamChecker): every entry has a name
            separator = " |";
            rest &= ~flag;
        }
    }
    if (rest != 0) {
        out.write(separator);
        out.write(' ');
        out.writeNumber(rest);
    }
    out.write(" )");
}
