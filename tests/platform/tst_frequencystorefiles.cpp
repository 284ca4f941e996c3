#include <freqstorexml/filehandling.h>
#include <freqstorexml/frequencystore.h>
#include <QFile>
#include <QTemporaryDir>
#include <reportlayer/rgexception.h>
#include <sys/stat.h>

using FreqStoreXml::FileHandling;
using FreqStoreXml::FrequencyStoreList;
using REPORTGENERATOR::RGException;

namespace {
QString entries(int count)
{
    QString text = "<FrequencyStoreList>";
    for (int i = 0; i < count; ++i)
        text += QString("<FrequencyStoreEntry><Profile_Data><ProfileID>%1</ProfileID><ProfileName>Entry %1"
                        "</ProfileName></Profile_Data></FrequencyStoreEntry>")
                    .arg(i);
    return text + "</FrequencyStoreList>";
}
} // namespace

class TstFrequencyStoreFiles : public QObject
{
    Q_OBJECT
private slots:
    void formatIsThatOfTheFirstElement_data();
    void formatIsThatOfTheFirstElement();
    void formatOfWhatIsNoFile();
    void importReplacesTheList();
    void importRefuses_data();
    void importRefuses();
    void listIsWrittenAndReadBack();
    void progressIsToldInOrder();
    void importIsStopped();

private:
    QString write(const QByteArray& bytes);

    QTemporaryDir m_folder;
};

QString TstFrequencyStoreFiles::write(const QByteArray& bytes)
{
    QFile file(m_folder.filePath("list.xml"));
    [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
    file.write(bytes);
    return file.fileName();
}

void TstFrequencyStoreFiles::formatIsThatOfTheFirstElement_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isValid");
    QTest::newRow("list") << QByteArray("<FrequencyStoreList/>") << true;
    QTest::newRow("declaration and comment first")
        << QByteArray("<?xml version=\"1.0\"?>\n<!-- made by hand -->\n<FrequencyStoreList/>") << true;
    QTest::newRow("damaged further on") << QByteArray("<FrequencyStoreList><a></b>") << true;
    QTest::newRow("job") << QByteArray("<Job/>") << false;
    QTest::newRow("text") << QByteArray("FrequencyStoreList") << false;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("document type") << QByteArray("<!DOCTYPE FrequencyStoreList><FrequencyStoreList/>")
                                   << false;
}

void TstFrequencyStoreFiles::formatIsThatOfTheFirstElement()
{
    QFETCH(QByteArray, bytes);
    QTEST(FileHandling().IsValidFormat(write(bytes)), "isValid");
}

void TstFrequencyStoreFiles::formatOfWhatIsNoFile()
{
    QVERIFY(!FileHandling().IsValidFormat(m_folder.filePath("missing.xml")));
    QVERIFY(!FileHandling().IsValidFormat(m_folder.path()));
    QVERIFY(!FileHandling().IsValidFormat("/dev/zero"));
    const QString pipe = m_folder.filePath("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!FileHandling().IsValidFormat(pipe));
}

void TstFrequencyStoreFiles::importReplacesTheList()
{
    FrequencyStoreList list;
    list.SetName("old");
    FileHandling().ImportXml(write(entries(3).toUtf8()), list);
    QVERIFY(!list.IsNameSet());
    QCOMPARE(list.GetFrequencyStoreEntry().size(), 3);
    QCOMPARE(list.GetFrequencyStoreEntry().at(2).GetProfile_Data().GetProfileName(), QString("Entry 2"));
}

void TstFrequencyStoreFiles::importRefuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("other root") << QByteArray("\n<Job/>") << ": line 2: ";
    QTest::newRow("malformed") << QByteArray("<FrequencyStoreList>\n\n<a></b>") << ": line 3: ";
    QTest::newRow("NUL") << QByteArray("<FrequencyStoreList>\0</FrequencyStoreList>", 42) << ": line 1: ";
    QTest::newRow("document type") << QByteArray("<!DOCTYPE a><FrequencyStoreList/>") << ": line 1: ";
}

void TstFrequencyStoreFiles::importRefuses()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QString file = write(bytes);
    FrequencyStoreList list;
    list.SetName("old");
    try {
        FileHandling().ImportXml(file, list);
        QFAIL("nothing was thrown");
    } catch (const RGException& exception) {
        QVERIFY2(exception.GetMessage().startsWith(file + reason), qPrintable(exception.GetMessage()));
    }
    QCOMPARE(list.GetName(), QString("old"));
    QVERIFY_EXCEPTION_THROWN(FileHandling().ImportXml(m_folder.filePath("missing.xml"), list), RGException);
    QVERIFY_EXCEPTION_THROWN(FileHandling().ImportXml(m_folder.path(), list), RGException);
}

void TstFrequencyStoreFiles::listIsWrittenAndReadBack()
{
    FrequencyStoreList list;
    FileHandling().ImportXml(write(entries(2).toUtf8()), list);
    const QString text = list.GetXmlString(true);
    FrequencyStoreList again;
    FileHandling().ImportXml(write(text.toUtf8()), again);
    QCOMPARE(again.GetXmlString(true), text);
    again.SetValidate(true);
    QVERIFY2(again.Check(), qPrintable(again.GetCheckReason()));
}

void TstFrequencyStoreFiles::progressIsToldInOrder()
{
    const QString text = entries(5000);
    QVector<int> places;
    const FileHandling handling([&](int done, int total) {
        places.append(done);
        return total == text.size();
    });
    FrequencyStoreList list;
    handling.ImportXml(write(text.toUtf8()), list);
    QCOMPARE(list.GetFrequencyStoreEntry().size(), 5000);
    QVERIFY(places.size() >= 4);
    QVERIFY(std::is_sorted(places.cbegin(), places.cend()));
    QVERIFY(places.last() < text.size());
}

void TstFrequencyStoreFiles::importIsStopped()
{
    int calls = 0;
    const FileHandling handling([&](int, int) { return ++calls < 2; });
    FrequencyStoreList list;
    list.SetName("old");
    QVERIFY_EXCEPTION_THROWN(handling.ImportXml(write(entries(5000).toUtf8()), list), RGException);
    QCOMPARE(calls, 2);
    QCOMPARE(list.GetName(), QString("old"));
}

QTEST_GUILESS_MAIN(TstFrequencyStoreFiles)
#include "tst_frequencystorefiles.moc"
