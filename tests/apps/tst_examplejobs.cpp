#include <componentdescriptor.h>
#include <enjobtype.h>
#include <jedcommonhelper.h>
#include <jobxml/job.h>
#include <jobxml/parametersettext.h>
#include <resourcedescription.h>
#include <support/stationfiles.h>
#include <values/node.h>

using JedTest::stationFolder;
using JedTest::textOfFile;
using JedTest::TunerFile;
using JedTest::tunerFiles;
using JEDVEPLUGIN::ComponentDescriptor;
using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::ResourceDescription;
using JobXml::ParameterSetText;
using REPORTGENERATOR::IRGObject;

/// The example jobs: one for each job type, made of what the station offers.
class TstExampleJobs : public QObject
{
    Q_OBJECT
private slots:
    void oneForEachJobType();
    void jobsAreValid_data();
    void jobsAreValid();
    void loadedAndSavedUnchanged_data();
    void loadedAndSavedUnchanged();
    void resourcesAreOffered_data();
    void resourcesAreOffered();
    void detectorsTakeConnectableResources_data();
    void detectorsTakeConnectableResources();
    void parameterSetsGoThroughTheValueTree_data();
    void parameterSetsGoThroughTheValueTree();
    void listsOfFrequenciesAndTransmitters();

private:
    void addJobs();
};

namespace {

JobXml::Job readJob(const QString& name)
{
    JobXml::Job job;
    job.SetXmlString(textOfFile(stationFolder("Jobs").filePath(name)), true);
    return job;
}

std::shared_ptr<ResourceDescription> descriptionOf(const JobXml::Subjob& subjob)
{
    const JobXml::ResourceDescription& resource = subjob.GetResourceDescription();
    const QString type = JobXml::ResourceDescription::TypeToName(resource.GetType());
    for (const TunerFile& file : tunerFiles()) {
        auto description = std::make_shared<ResourceDescription>(file.text);
        if (description->getType() == type && description->getBaseResource() == resource.GetBaseResource())
            return description;
    }
    return nullptr;
}

/// The element of the sub-job that carries the parameter set; null if it has none.
const IRGObject* elementOf(const JobXml::Subjob& subjob, const QString& set)
{
    const QString element = QString::fromLatin1(JobXml::findParameterSet(set)->table->elementName);
    for (const QString& path : {element, "Settings." + element}) {
        const IRGObject* found = REPORTGENERATOR::childElement(subjob, path);
        if (found && found->isSet())
            return found;
    }
    return nullptr;
}

} // namespace

void TstExampleJobs::addJobs()
{
    QTest::addColumn<QString>("name");
    const QStringList names = stationFolder("Jobs").entryList(QDir::Files);
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void TstExampleJobs::oneForEachJobType()
{
    QStringList types;
    const QStringList names = stationFolder("Jobs").entryList(QDir::Files);
    for (const QString& name : names)
        types << JobXml::JobInformation::JobTypeToName(readJob(name).GetJobInformation().GetJobType());

    QStringList all = JobXml::JobInformation::GetJobTypes();
    types.sort();
    all.sort();
    QCOMPARE(types, all);
}

void TstExampleJobs::jobsAreValid_data()
{
    addJobs();
}

void TstExampleJobs::jobsAreValid()
{
    QFETCH(QString, name);
    JobXml::Job job;
    job.SetValidate(true);

    QVERIFY2(
        job.SetXmlString(textOfFile(stationFolder("Jobs").filePath(name)), true),
        qPrintable(QString("%1:%2 %3").arg(name, QString::number(job.GetCheckLine()), job.GetCheckReason())));
    QVERIFY(job.problems().isEmpty());
    QVERIFY(job.GetSubjob().size() >= 2);
}

void TstExampleJobs::loadedAndSavedUnchanged_data()
{
    addJobs();
}

void TstExampleJobs::loadedAndSavedUnchanged()
{
    QFETCH(QString, name);

    QCOMPARE(readJob(name).GetXmlString(true), textOfFile(stationFolder("Jobs").filePath(name)));
}

void TstExampleJobs::resourcesAreOffered_data()
{
    addJobs();
}

void TstExampleJobs::resourcesAreOffered()
{
    QFETCH(QString, name);
    const JobXml::Job job = readJob(name);
    const JEDVE::enJOB_TYPE type = JEDCommonHelper::jobXmlTypeToJobType(job.GetJobInformation().GetJobType());

    for (const JobXml::Subjob& subjob : job.GetSubjob()) {
        const auto description = descriptionOf(subjob);
        QVERIFY2(description, qPrintable(subjob.GetName()));
        QCOMPARE(subjob.GetResourceDescription().GetName(), description->getName());
        const QString mode = JobXml::Subjob::StartupModeToName(subjob.GetStartupMode());
        const QStringList modes = JEDCommonHelper::restrictedStartupModes(
            description->getStartupModes(), JEDCommonHelper::allowedStartupModeString(type));
        QVERIFY2(modes.contains(mode) || description->getStartupModes().isEmpty(),
                 qPrintable(subjob.GetName()));
    }
}

void TstExampleJobs::detectorsTakeConnectableResources_data()
{
    addJobs();
}

void TstExampleJobs::detectorsTakeConnectableResources()
{
    QFETCH(QString, name);
    const JobXml::Job job = readJob(name);
    const bool isSurveillance =
        job.GetJobInformation().GetJobType() == JobXml::JobInformation::NameToJobType("Surveillance");

    for (const JobXml::Subjob& subjob : job.GetSubjob()) {
        QVERIFY(!isSurveillance || subjob.GetDetector().isEmpty());
        for (const JobXml::Detector& detector : subjob.GetDetector()) {
            if (detector.GetDSCChannels() > 0)
                QVERIFY2(
                    descriptionOf(subjob)->getConnectableResources().contains(detector.GetBaseResource()),
                    qPrintable(subjob.GetName()));
        }
    }
}

void TstExampleJobs::parameterSetsGoThroughTheValueTree_data()
{
    addJobs();
}

void TstExampleJobs::parameterSetsGoThroughTheValueTree()
{
    QFETCH(QString, name);
    const JobXml::Job job = readJob(name);

    int sets = 0;
    for (const JobXml::Subjob& subjob : job.GetSubjob()) {
        ::Node root;
        const auto description = descriptionOf(subjob);
        for (const std::shared_ptr<ComponentDescriptor>& component : description->getComponents())
            component->createVTConfig(&root);
        const QVector<::Node*> nodes = root.GetChildNodes();
        for (::Node* node : nodes) {
            const IRGObject* element = elementOf(subjob, node->GetId());
            if (!element)
                continue;
            ++sets;
            const QString where = subjob.GetName() + " " + node->GetId();
            const QString text = element->GetXmlString();
            ParameterSetText::Report report;
            QVERIFY2(ParameterSetText::fromText(*node, text, &report), qPrintable(where + report.failure));
            QVERIFY2(report.isClean(),
                     qPrintable(where + " " + (report.textsNotConverted + report.valuesClamped).join(' ')));
            if (node->GetId() != "DSCSettings") // A job does not carry all that the receiver sets of it.
                QCOMPARE(ParameterSetText::toText(*node, text), text);
        }
    }
    QVERIFY(sets >= 5);
}

void TstExampleJobs::listsOfFrequenciesAndTransmitters()
{
    int frequencies = 0;
    int transmitters = 0;
    const QStringList names = stationFolder("Jobs").entryList(QDir::Files);
    for (const QString& name : names) {
        const JobXml::Job job = readJob(name);
        for (const JobXml::Subjob& subjob : job.GetSubjob()) {
            frequencies += subjob.GetSettings().GetFrequencyListSettings().GetFrequencyItem().size();
            transmitters += subjob.GetSettings().GetTransmitterListSettings().GetTransmitterItem().size();
        }
    }

    QVERIFY(frequencies >= 2);
    QVERIFY(transmitters >= 2);
}

QTEST_GUILESS_MAIN(TstExampleJobs)
#include "tst_examplejobs.moc"
