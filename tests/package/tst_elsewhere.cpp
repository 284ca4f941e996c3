// A plug-in author's test, built outside the tree: arguments are the plug-in, the installation and the components.

#include <support/testmain.h>

#include <isubsetting.h>
#include <jobxml/job.h>
#include <support/modeltext.h>
#include <support/plugindriver.h>
#include <support/temporaryinstallation.h>

#include <QStandardItemModel>

namespace {
QStringList s_arguments;
}

class TstElsewhere : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();

    void subjobIsMadeEditedAndWritten();
    void tracesAreRecorded();
    void rowsBecomeText();

private:
    std::unique_ptr<JedTest::TemporaryInstallation> m_installation;
    std::unique_ptr<JedTest::PluginDriver> m_plugin;
};

void TstElsewhere::initTestCase()
{
    m_installation = std::make_unique<JedTest::TemporaryInstallation>(s_arguments.at(2), s_arguments.at(3));
    m_plugin = std::make_unique<JedTest::PluginDriver>(s_arguments.at(1));
    (*m_plugin)->slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
}

void TstElsewhere::subjobIsMadeEditedAndWritten()
{
    JobXml::Subjob wanted;
    wanted.SetName("Watch");
    wanted.SetStartupMode(JobXml::Subjob::NameToStartupMode("Automatic"));
    wanted.GetResourceDescription().SetType(JobXml::ResourceDescription::NameToType("HT720"));
    wanted.GetResourceDescription().SetBaseResource("HF-1");
    QVERIFY((*m_plugin)->claimsSubjob(wanted));
    JEDVEPLUGIN::ISubSetting* const subjob = (*m_plugin)->readSubjob(wanted, nullptr);
    QVERIFY(subjob);
    JEDVEPLUGIN::ISubSetting* const tuner = (*m_plugin)->createSubSetting("Tuner", subjob);
    QVERIFY(tuner);
    QString xml = tuner->parameterSetText("TunerSettings");
    xml.replace(QRegularExpression("<CenterFrequency>\\d+"), "<CenterFrequency>8414500");
    QVERIFY(tuner->setParameterSetText("TunerSettings", xml));
    JobXml::Subjob written;
    QVERIFY((*m_plugin)->writeSubjob(subjob, written, nullptr));
    QVERIFY(written.GetXmlString().contains("<CenterFrequency>8414500</CenterFrequency>"));
    (*m_plugin)->clear();
    QVERIFY((*m_plugin)->topLevelSettings().isEmpty());
}

void TstElsewhere::tracesAreRecorded()
{
    JedTest::TraceRecorder traces;
    ErrorHandler::Instance()->SetTraceMask(ErrorHandler::TRACE_JOB_TYPE);
    (*m_plugin)->slot_setCurrentJobType(JEDVE::JOB_TYPE_SURVEILLANCE);
    QCOMPARE(traces.take().size(), 1);
}

void TstElsewhere::rowsBecomeText()
{
    QStandardItemModel model;
    model.appendRow({new QStandardItem("a"), new QStandardItem("b")});
    model.item(0)->appendRow(new QStandardItem("below"));
    QCOMPARE(JedTest::modelText(model), QStringList({"a | b", "  below"}));
}

int main(int argc, char** argv)
{
    for (int i = 0; i < argc; ++i)
        s_arguments.append(QString::fromLocal8Bit(argv[i]));
    int ownCount = 1;
    return s_arguments.size() == 4 ? JedTest::run<TstElsewhere>(ownCount, argv) : 2;
}

#include "tst_elsewhere.moc"
