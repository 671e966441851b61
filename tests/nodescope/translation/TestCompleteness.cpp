#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

struct Message {
    QString context;
    QString source;
    QString translation;
    bool isFinished;
};

QList<Message> readMessages(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
    QXmlStreamReader xml(&file);
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            messages.append({context, xml.readElementText(), QString(), false});
        } else if (xml.name() == QLatin1String("translation")) {
            messages.last().isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            messages.last().translation = xml.readElementText();
        }
    }
    return messages;
}

/** The translation after a look at all sources, as it would be written into the repository. */
QList<Message> updatedMessages()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath("updated.ts");
    EXPECT_TRUE(QFile::copy(TRANSLATION, copy));
    QProcess update;
    update.setWorkingDirectory(SOURCE_FOLDER);
    update.start(LUPDATE, {"-silent", "nodescope", "extension", "vexel/viewer", "-ts", copy});
    EXPECT_TRUE(update.waitForFinished() && update.exitCode() == 0) << update.errorString().toStdString();
    return readMessages(copy);
}

QStringList placeholders(const QString& text)
{
    static const QRegularExpression Placeholder("%L?[0-9]");
    QStringList found;
    for (auto match = Placeholder.globalMatch(text); match.hasNext();)
        found << match.next().captured();
    found.sort();
    return found;
}

} // namespace

TEST(GermanTexts, AreThereForEveryTextOfTheSources)
{
    const QList<Message> messages = updatedMessages();
    EXPECT_GT(messages.size(), 200);
    for (const Message& message : messages) {
        EXPECT_TRUE(message.isFinished && !message.translation.isEmpty())
            << message.context.toStdString() << ": '" << message.source.toStdString()
            << "' has no translation, or is no text of the program any more; see nodescope/resources/README.md";
    }
}

TEST(GermanTexts, HaveThePlaceholdersAndDotsOfTheirSources)
{
    for (const Message& message : readMessages(TRANSLATION)) {
        EXPECT_EQ(placeholders(message.translation), placeholders(message.source)) << message.source.toStdString();
        EXPECT_EQ(message.translation.endsWith("..."), message.source.endsWith("...")) << message.source.toStdString();
        EXPECT_EQ(message.translation.endsWith(' '), message.source.endsWith(' ')) << message.source.toStdString();
    }
}
