#include <quilappstartup/translationcenter.h>

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class TstTranslationCenter : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void instanceIsOne();
    void sourceTextsAtFirst();
    void languageIsInstalledAndTakenBack();
    void unknownLanguage();
    void countryBeforeLanguage();
    void laterFolderWins();
    void filesOfOtherLanguagesAreLeftAlone();
    void brokenFilesAreLeftOut();
    void foldersAreKeptOnce();

private:
    QString makeFolder();

    std::unique_ptr<QTemporaryDir> m_folder;
    int m_folders = 0;
};

namespace {

const char* const CONTEXT = "Receiver";

TranslationCenter& center()
{
    return *TranslationCenter::Instance();
}

QString shown(const char* source)
{
    return QCoreApplication::translate(CONTEXT, source);
}

/// The hash by which translation files find a source text.
quint32 hashOf(const QByteArray& source)
{
    quint32 hash = 0;
    for (const char character : source) {
        hash = (hash << 4) + quint8(character);
        const quint32 high = hash & 0xF0000000u;
        hash ^= high >> 24;
        hash &= ~high;
    }
    return hash == 0 ? 1 : hash;
}

/// Writes a translation file with one text in it.
void writeTranslation(const QString& path, const QByteArray& source, const QString& translation)
{
    QByteArray message;
    QDataStream messageStream(&message, QIODevice::WriteOnly);
    messageStream << quint8(3) << quint32(translation.size() * 2);
    for (const QChar character : translation)
        messageStream << character.unicode();
    messageStream << quint8(6) << quint32(source.size() + 1);
    messageStream.writeRawData(source.constData(), source.size() + 1);
    messageStream << quint8(7) << quint32(qstrlen(CONTEXT) + 1);
    messageStream.writeRawData(CONTEXT, int(qstrlen(CONTEXT)) + 1);
    messageStream << quint8(1);

    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write a translation");
    QDataStream stream(&file);
    const quint32 magic[] = {0x3CB86418u, 0xCAEF9C95u, 0xCD211CBFu, 0x60A1BDDDu};
    for (const quint32 word : magic)
        stream << word;
    stream << quint8(0x42) << quint32(8) << hashOf(source) << quint32(0);
    stream << quint8(0x69) << quint32(message.size());
    stream.writeRawData(message.constData(), message.size());
}

} // namespace

void TstTranslationCenter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(center().SetLanguage(QString()));
}

/// A new folder that the centre looks into.
QString TstTranslationCenter::makeFolder()
{
    const QString path = m_folder->filePath(QString::number(++m_folders));
    if (!QDir().mkpath(path))
        qFatal("no folder for translations");
    center().AddFolder(path);
    return path;
}

void TstTranslationCenter::instanceIsOne()
{
    QVERIFY(TranslationCenter::Instance() != nullptr);
    QCOMPARE(TranslationCenter::Instance(), TranslationCenter::Instance());
}

void TstTranslationCenter::sourceTextsAtFirst()
{
    QCOMPARE(center().GetLanguage(), QString());
    QCOMPARE(shown("Gain"), QString("Gain"));
}

void TstTranslationCenter::languageIsInstalledAndTakenBack()
{
    const QString folder = makeFolder();
    writeTranslation(folder + "/library_de.qm", "Gain", QString::fromUtf8("Verstärkung"));
    writeTranslation(folder + "/editor_de.qm", "Bearing", "Peilung");
    writeTranslation(folder + "/library_fr.qm", "Gain", "Gain d'antenne");
    QVERIFY(center().SetLanguage("de"));
    QCOMPARE(center().GetLanguage(), QString("de"));
    QCOMPARE(shown("Gain"), QString::fromUtf8("Verstärkung"));
    QCOMPARE(shown("Bearing"), QString("Peilung"));
    QCOMPARE(shown("Level"), QString("Level"));

    QVERIFY(center().SetLanguage("fr"));
    QCOMPARE(shown("Gain"), QString("Gain d'antenne"));
    QCOMPARE(shown("Bearing"), QString("Bearing"));

    QVERIFY(center().SetLanguage(QString()));
    QCOMPARE(center().GetLanguage(), QString());
    QCOMPARE(shown("Gain"), QString("Gain"));
}

void TstTranslationCenter::unknownLanguage()
{
    writeTranslation(makeFolder() + "/library_de.qm", "Gain", "x");
    QVERIFY(center().SetLanguage("de"));
    for (const char* language : {"it", "*", "e", "../de"}) {
        QVERIFY2(!center().SetLanguage(language), language);
        QCOMPARE(center().GetLanguage(), QString());
        QCOMPARE(shown("Gain"), QString("Gain"));
    }
}

void TstTranslationCenter::countryBeforeLanguage()
{
    const QString folder = makeFolder();
    writeTranslation(folder + "/a_de_CH.qm", "Gain", "Schweizer Text");
    writeTranslation(folder + "/b_de.qm", "Gain", "deutscher Text");
    writeTranslation(folder + "/c_de.qm", "Bearing", "Peilung");
    QVERIFY(center().SetLanguage("de_CH"));
    QCOMPARE(center().GetLanguage(), QString("de_CH"));
    QCOMPARE(shown("Gain"), QString("Schweizer Text"));
    QCOMPARE(shown("Bearing"), QString("Peilung"));
    QVERIFY(center().SetLanguage("de_AT")); // The country has no file, the language has.
    QCOMPARE(shown("Gain"), QString("deutscher Text"));
    QVERIFY(center().SetLanguage("de"));
    QCOMPARE(shown("Gain"), QString("deutscher Text"));
}

void TstTranslationCenter::laterFolderWins()
{
    writeTranslation(makeFolder() + "/z_de.qm", "Gain", "first");
    writeTranslation(makeFolder() + "/a_de.qm", "Gain", "second");
    QVERIFY(center().SetLanguage("de"));
    QCOMPARE(shown("Gain"), QString("second"));
}

void TstTranslationCenter::filesOfOtherLanguagesAreLeftAlone()
{
    const QString folder = makeFolder();
    writeTranslation(folder + "/library_de.ts", "Gain", "not a compiled file");
    writeTranslation(folder + "/de.qm", "Gain", "no name before the language");
    writeTranslation(folder + "/library_nde.qm", "Gain", "other language");
    QVERIFY(!center().SetLanguage("de"));
    QCOMPARE(shown("Gain"), QString("Gain"));
}

void TstTranslationCenter::brokenFilesAreLeftOut()
{
    const QString folder = makeFolder();
    QFile broken(folder + "/broken_de.qm");
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no translation");
    broken.close();
    QVERIFY(QDir().mkpath(folder + "/folder_de.qm"));
    QVERIFY(!center().SetLanguage("de"));
    writeTranslation(folder + "/good_de.qm", "Gain", "good");
    QVERIFY(center().SetLanguage("de"));
    QCOMPARE(shown("Gain"), QString("good"));
}

void TstTranslationCenter::foldersAreKeptOnce()
{
    const QString folder = makeFolder();
    const QStringList before = center().GetFolders();
    QCOMPARE(before.first(), QString(":/translations"));
    QCOMPARE(before.last(), folder);
    center().AddFolder(folder);
    center().AddFolder(QString());
    QCOMPARE(center().GetFolders(), before);
}

QTEST_GUILESS_MAIN(TstTranslationCenter)
#include "tst_translationcenter.moc"
