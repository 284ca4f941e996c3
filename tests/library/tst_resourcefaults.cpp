#include "resourcedescription.h"

#include <QDir>
#include <QTemporaryDir>
#include <quilappstartup/cfgcenter.h>
#include <reportlayer/irgobject.h>
#include <reportlayer/rgexception.h>
#include <support/tracerecorder.h>
#include <zubase/zuexception.h>

#include <dlfcn.h>

// The program's own definitions of four platform operations stand in front of those of the platform's
// libraries: each writes down that it is called, throws when it is told to, and otherwise runs the real one.

using JEDVEPLUGIN::ResourceDescription;
using REPORTGENERATOR::IRGObject;
using REPORTGENERATOR::RGException;

namespace {

bool s_configurationThrows = false;
bool s_readingThrows = false;
bool s_checkingThrows = false;
QStringList s_calls;

template <class Function>
Function* realOne(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

QString text(const QString& name)
{
    return QStringLiteral(
               "<TunerProperties name='%1' type='HT720' baseresource='b' quantity='1' version='1.2'/>")
        .arg(name);
}

} // namespace

Cfg* CfgCenter::GetAdminCfg(int view)
{
    s_calls.append(QStringLiteral("GetAdminCfg(%1)").arg(view));
    using Real = Cfg*(CfgCenter*, int);
    return realOne<Real>("_ZN9CfgCenter11GetAdminCfgEi")(this, view);
}

Cfg* CfgCenter::CreateCfg(const QString& name, int view, const QString& variant)
{
    s_calls.append(QStringLiteral("CreateCfg(%1, %2, '%3')").arg(name, QString::number(view), variant));
    if (s_configurationThrows)
        throw ZuException(QStringLiteral("no %1 for %2").arg(name, QString::number(view)));
    using Real = Cfg*(CfgCenter*, const QString&, int, const QString&);
    return realOne<Real>("_ZN9CfgCenter9CreateCfgERK7QStringiS2_")(this, name, view, variant);
}

bool IRGObject::SetXmlString(const QString& xml, bool whole)
{
    s_calls.append(QStringLiteral("SetXmlString(whole %1, validating %2)").arg(whole).arg(GetValidate()));
    if (s_readingThrows)
        throw RGException(QStringLiteral("no reading"));
    using Real = bool(IRGObject*, const QString&, bool);
    return realOne<Real>("_ZN15REPORTGENERATOR9IRGObject12SetXmlStringERK7QStringb")(this, xml, whole);
}

bool IRGObject::Check()
{
    s_calls.append(QStringLiteral("Check(validating %1)").arg(GetValidate()));
    if (s_checkingThrows)
        throw ZuException(QStringLiteral("no checking"));
    using Real = bool(IRGObject*);
    return realOne<Real>("_ZN15REPORTGENERATOR9IRGObject5CheckEv")(this);
}

class TstResourceFaults : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void loadsLenientlyThenChecksStrictly();
    void doesNotCheckWhatIsOutdated();
    void anExceptionWhileReadingLeavesAnInvalidDescription();
    void anExceptionWhileCheckingLeavesAnInvalidDescription();
    void anExceptionOfTheConfigurationLeavesTheUsualFolder();

private:
    JedTest::TraceRecorder m_traces;
};

void TstResourceFaults::cleanup()
{
    s_configurationThrows = false;
    s_readingThrows = false;
    s_checkingThrows = false;
    s_calls.clear();
}

void TstResourceFaults::loadsLenientlyThenChecksStrictly()
{
    QVERIFY(ResourceDescription(text("a")).isValid());

    QCOMPARE(s_calls, QStringList({"SetXmlString(whole 1, validating 0)", "Check(validating 1)"}));
}

void TstResourceFaults::doesNotCheckWhatIsOutdated()
{
    QVERIFY(!ResourceDescription(text("a").replace("1.2", "1.0")).isValid());

    QCOMPARE(s_calls, QStringList({"SetXmlString(whole 1, validating 0)"}));
}

void TstResourceFaults::anExceptionWhileReadingLeavesAnInvalidDescription()
{
    s_readingThrows = true;
    const ResourceDescription description(text("a"));
    s_readingThrows = false;

    QVERIFY(!description.isValid());
    QVERIFY(description.getVersion().isNull());
    QCOMPARE(m_traces.take(),
             QStringList("resourcehandling:342: unable to read Tuner Properties: no reading"));
    QVERIFY(ResourceDescription(text("a")).isValid());
}

void TstResourceFaults::anExceptionWhileCheckingLeavesAnInvalidDescription()
{
    s_checkingThrows = true;
    const ResourceDescription description(text("a"));

    QVERIFY(!description.isValid());
    QVERIFY(description.getName().isNull());
    QCOMPARE(description.getVersion(), QStringLiteral("1.2"));
    QCOMPARE(m_traces.take(),
             QStringList("resourcehandling:342: unable to read Tuner Properties: no checking"));
}

void TstResourceFaults::anExceptionOfTheConfigurationLeavesTheUsualFolder()
{
    QTemporaryDir installation;
    const auto write = [&installation](const QString& name, const QString& content) {
        QFile file(installation.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content.toUtf8());
    };
    QVERIFY(QDir(installation.path()).mkpath("data/TemplateFolder"));
    write("installation.ini", "[Administration]\nVelmoDataDir = data\n[JobManagement]\nTemplateFolder = .\n");
    write("data/TemplateFolder/usual.xml", text("usual"));
    CfgCenter::Instance()->SetInstallation(installation.path());

    s_configurationThrows = true;
    const auto descriptions = ResourceDescription::readAllResourceFiles();
    QCOMPARE(s_calls.mid(0, 2), QStringList({"GetAdminCfg(2)", "CreateCfg(JobManagement, 4, '')"}));
    QCOMPARE(
        m_traces.take(),
        QStringList({"resourcehandling:356: no configuration of the job management: no JobManagement for 4",
                     "resourcehandling:382: Reading Tuner Property File: usual.xml"}));
    QCOMPARE(descriptions.size(), 1);
    QCOMPARE(descriptions.first()->getName(), QString("usual"));

    // That was the one time.
    s_configurationThrows = false;
    s_calls.clear();
    QCOMPARE(ResourceDescription::readAllResourceFiles().size(), 1);
    QCOMPARE(m_traces.take(), QStringList());
    QCOMPARE(s_calls, QStringList());
}

QTEST_GUILESS_MAIN(TstResourceFaults)
#include "tst_resourcefaults.moc"
