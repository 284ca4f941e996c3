#include <jobxml/suggestion.h>
#include <session/finding.h>

using namespace JobXml;
using namespace Session;

class TstSuggestion : public QObject
{
    Q_OBJECT
private slots:
    void nearestCandidate_data();
    void nearestCandidate();
    void theSentenceFollowsAnother();
    void findingsAsText();
    void findingsAsJson();
    void onlyNotesNeedNoAttention();
};

void TstSuggestion::nearestCandidate_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("candidate");
    QTest::newRow("same") << "resources"
                          << "resources";
    QTest::newRow("one letter missing") << "resorces"
                                        << "resources";
    QTest::newRow("one letter more") << "jobb"
                                     << "job";
    QTest::newRow("two letters swapped") << "HT702"
                                         << "HT720";
    QTest::newRow("case") << "TUNERSETTINGS"
                          << "TunerSettings";
    QTest::newRow("a third of the letters") << "jxb"
                                            << "job";
    QTest::newRow("more than a third") << "jxx"
                                       << "";
    QTest::newRow("far") << "antenna"
                         << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("very long") << QString(1000000, 'j') << "";
    QTest::newRow("equally near: the first") << "HT72"
                                             << "HT720";
}

void TstSuggestion::nearestCandidate()
{
    QFETCH(QString, word);
    QFETCH(QString, candidate);
    QCOMPARE(nearest(word, {"resources", "job", "HT720", "HT721", "TunerSettings"}), candidate);
}

void TstSuggestion::theSentenceFollowsAnother()
{
    QCOMPARE(suggestion("jobb", {"job"}), QString(" Did you mean \"job\"?"));
    QVERIFY(suggestion("other", {"job"}).isEmpty());
    QVERIFY(suggestion("job", {}).isEmpty());
}

void TstSuggestion::findingsAsText()
{
    QCOMPARE((Finding{Finding::FAILURE, "a.xml", 3, 7, "bad", "Mend it."}).toText(),
             QString("a.xml:3:7: error: bad\n    Mend it."));
    QCOMPARE((Finding{Finding::WARNING, "a.xml", 0, 0, "odd", ""}).toText(), QString("a.xml: warning: odd"));
    QCOMPARE((Finding{Finding::NOTE, "", 0, 0, "fine", ""}).toText(), QString("note: fine"));
}

void TstSuggestion::findingsAsJson()
{
    const Findings findings{{Finding::FAILURE, "a.xml", 3, 7, "bad", "Mend it."},
                            {Finding::NOTE, "", 0, 0, "fine", ""}};
    QCOMPARE(
        QJsonDocument(toJson(findings)).toJson(QJsonDocument::Compact),
        QByteArray(
            "[{\"advice\":\"Mend it.\",\"column\":7,\"line\":3,\"place\":\"a.xml\",\"severity\":\"error\","
            "\"text\":\"bad\"},{\"severity\":\"note\",\"text\":\"fine\"}]"));
}

void TstSuggestion::onlyNotesNeedNoAttention()
{
    const Finding note{Finding::NOTE, "", 0, 0, "fine", ""};
    const Finding warning{Finding::WARNING, "", 0, 0, "odd", ""};
    QVERIFY(!needsAttention({}));
    QVERIFY(!needsAttention({note, note}));
    QVERIFY(needsAttention({note, warning}));
}

QTEST_GUILESS_MAIN(TstSuggestion)
#include "tst_suggestion.moc"
