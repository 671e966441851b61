#include <vexel/base/SbFileHelper.h>

#include <vexel/base/SbString.h>
#include <vexel/base/SoPreferences.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <unistd.h>

/** Where the file's name begins in a path. */
static int nameStart(const QString& path)
{
    return path.lastIndexOf('/') + 1;
}

SbString SbFileHelper::getDirName(const SbString& path)
{
    const QString& text = path.toQString();
    return text.left(nameStart(text));
}

SbString SbFileHelper::getBaseName(const SbString& path, bool withExtension)
{
    const QString& text = path.toQString();
    const QString name = text.mid(nameStart(text));
    const int dot = name.lastIndexOf('.');
    return withExtension || dot <= 0 ? name : name.left(dot);
}

SbString SbFileHelper::getExtension(const SbString& path)
{
    const QString name = getBaseName(path).toQString();
    const int dot = name.lastIndexOf('.');
    return dot <= 0 ? QString() : name.mid(dot + 1);
}

SbString SbFileHelper::toUnixPath(const SbString& path)
{
    return QString(path.toQString()).replace('\\', '/');
}

bool SbFileHelper::isAbsolute(const SbString& path)
{
    return QDir::isAbsolutePath(path.toQString());
}

SbString SbFileHelper::getFullPath(const SbString& path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path.toQString()));
}

bool SbFileHelper::isAccessible(const SbString& path, AccessMode mode)
{
    static constexpr int Flags[] = {F_OK, R_OK, W_OK, R_OK | W_OK};
    return ::access(QFile::encodeName(path.toQString()).constData(), Flags[mode]) == 0;
}

SbString SbFileHelper::expandString(const SbString& text)
{
    static const QRegularExpression reference(R"(\$(?:\{(\w+)\}|([A-Za-z_]\w*)))");
    const QString& source = text.toQString();
    QString result;
    int copied = 0;
    for (auto match = reference.globalMatch(source); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const SbString name(found.captured(1) + found.captured(2));
        result += source.midRef(copied, found.capturedStart() - copied);
        result += SoPreferences::hasValue(name) ? SoPreferences::getString(name, "").toQString() : found.captured();
        copied = found.capturedEnd();
    }
    return result + source.midRef(copied);
}
