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

/** A file of texts, relative to the sources, and where its texts stand. */
struct Texts {
    const char* file;
    QStringList folders;
    int fewest;
    const char* readme;

    QString path() const { return QDir(SOURCE_FOLDER).filePath(file); }
};

/** The translation after a look at all sources, as it would be written into the repository. */
QList<Message> updatedMessages(const Texts& texts)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath("updated.ts");
    EXPECT_TRUE(QFile::copy(texts.path(), copy));
    QProcess update;
    update.setWorkingDirectory(SOURCE_FOLDER);
    update.start(LUPDATE, QStringList("-silent") + texts.folders + QStringList({"-ts", copy}));
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

class GermanTexts : public testing::TestWithParam<Texts> {};

} // namespace

TEST_P(GermanTexts, AreThereForEveryTextOfTheSources)
{
    const QList<Message> messages = updatedMessages(GetParam());
    EXPECT_GT(messages.size(), GetParam().fewest);
    for (const Message& message : messages) {
        EXPECT_TRUE(message.isFinished && !message.translation.isEmpty())
            << message.context.toStdString() << ": '" << message.source.toStdString()
            << "' has no translation, or is no text of the program any more; see " << GetParam().readme;
    }
}

TEST_P(GermanTexts, HaveThePlaceholdersAndDotsOfTheirSources)
{
    for (const Message& message : readMessages(GetParam().path())) {
        EXPECT_EQ(placeholders(message.translation), placeholders(message.source)) << message.source.toStdString();
        EXPECT_EQ(message.translation.endsWith("..."), message.source.endsWith("...")) << message.source.toStdString();
        EXPECT_EQ(message.translation.endsWith(' '), message.source.endsWith(' ')) << message.source.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Files, GermanTexts,
                         testing::Values(Texts{"nodescope/resources/translations/nodescope_de.ts",
                                               {"nodescope", "extension", "vexel/viewer"},
                                               200,
                                               "nodescope/resources/README.md"},
                                         Texts{"plugins/field_editors/translations/field_editors_de.ts",
                                               {"plugins/field_editors"},
                                               100,
                                               "plugins/field_editors/README.md"}));
