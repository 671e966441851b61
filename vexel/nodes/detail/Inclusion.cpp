#include <vexel/nodes/detail/Inclusion.h>

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <vector>

#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoReadError.h>
#include <vexel/io/SoInput.h>

namespace {

// Files that include one another twice each make two to the power of their number.
constexpr int MostInclusions = 10000;

struct OpenFiles {
    std::vector<SbString> names;
    int numInclusions = 0;
};

OpenFiles& openFiles()
{
    static thread_local OpenFiles files;
    return files;
}

} // namespace

SbString Inclusion::find(const SbString& name, const SoInput* includer, SoInput& in)
{
    SbString found;
    if (includer) {
        const QFileInfo including(includer->getCurFileName().toQString());
        for (const SbString& directory : includer->getDirectories())
            in.addDirectoryLast(directory);
        const QString relative = SbFileHelper::expandString(name).toQString();
        if (!includer->getCurFileName().isEmpty() && QFileInfo(relative).isRelative()) {
            const QFileInfo beside(including.dir().filePath(relative));
            if (beside.isFile())
                found = SbString(beside.absoluteFilePath());
        }
    }
    if (found.isEmpty())
        found = in.findFile(name);
    if (found.isEmpty()) {
        SoReadError::post(name, "there is no such file to include");
        return found;
    }
    return SbFileHelper::getFullPath(found);
}

Inclusion::Inclusion(const SbString& fullName, const SoInput* includer) : m_before(openFiles().names.size())
{
    OpenFiles& files = openFiles();
    if (m_before == 0)
        files.numInclusions = 0;
    if (includer && !includer->getCurFileName().isEmpty())
        files.names.push_back(SbFileHelper::getFullPath(includer->getCurFileName()));
    if (std::find(files.names.begin(), files.names.end(), fullName) != files.names.end()) {
        SoReadError::post(fullName, "the file includes itself; it is not read again");
        m_isAllowed = false;
    } else if (++files.numInclusions > MostInclusions) {
        if (files.numInclusions == MostInclusions + 1)
            SoReadError::post(fullName, "more than %d files are included; the others are left out", MostInclusions);
        m_isAllowed = false;
    }
    files.names.push_back(fullName);
}

Inclusion::~Inclusion()
{
    openFiles().names.resize(m_before);
}
