#include "loadedplugin.h"

#include <jedcommonhelper.h>
#include <support/testmain.h>

#include <limits>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTabWidget>
#include <QTemporaryDir>

using JedTest::LoadedPlugin;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;
using JEDVEPLUGIN::ResourceUse;

/// What holds for every plug-in.
class TstPluginFrame : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { JedTest::useStation(); }
    void aFreshFactory_data() { plugins(); }
    void aFreshFactory();
    void subJobsComeFromTheDialog_data() { plugins(); }
    void subJobsComeFromTheDialog();
    void cancelledDialogsChangeNothing_data() { plugins(); }
    void cancelledDialogsChangeNothing();
    void whatCannotBeCreated_data() { plugins(); }
    void whatCannotBeCreated();
    void savedSubJobsAreValidAndReadBackEqual_data() { plugins(); }
    void savedSubJobsAreValidAndReadBackEqual();
    void exampleJobsStayAsTheyAre_data();
    void exampleJobsStayAsTheyAre();
    void everyExampleJobHasItsPlugin_data();
    void everyExampleJobHasItsPlugin();
    void listsOfFrequenciesAreImported_data() { plugins(); }
    void listsOfFrequenciesAreImported();
    void whatCannotBeImported_data() { plugins(); }
    void whatCannotBeImported();
    void editingTellsAndCounts_data() { plugins(); }
    void editingTellsAndCounts();
    void parameterSetTextsUndo_data() { plugins(); }
    void parameterSetTextsUndo();
    void unreadableTextsAreRefused_data() { plugins(); }
    void unreadableTextsAreRefused();
    void pastedTextsGiveTheSameSubtree_data() { plugins(); }
    void pastedTextsGiveTheSameSubtree();
    void duplicatesHaveNamesOfTheirOwn_data() { plugins(); }
    void duplicatesHaveNamesOfTheirOwn();
    void deletionIsUndoneByPasting_data() { plugins(); }
    void deletionIsUndoneByPasting();
    void malformedMimeTexts_data();
    void malformedMimeTexts();
    void readOnlyFactoriesChangeNothing_data() { plugins(); }
    void readOnlyFactoriesChangeNothing();
    void receiversThatAreInUse_data() { plugins(); }
    void receiversThatAreInUse();
    void clearingLeavesNothing_data() { plugins(); }
    void clearingLeavesNothing();
    void subJobsAreRenamed_data() { plugins(); }
    void subJobsAreRenamed();
    void pluginsOnTheKitAreSmall_data();
    void pluginsOnTheKitAreSmall();

private:
    static void plugins()
    {
        QTest::addColumn<QString>("plugin");
        QTest::newRow("minimal") << "minimal";
        QTest::newRow("production") << "production";
        QTest::newRow("search") << "search";
    }
    static ISubSetting* create(const LoadedPlugin& plugin, const QString& resource = "HT720/HF-1");
    static ISubSetting* carrierOf(ISubSetting* node, const QString& set);
};

namespace {
const char* const PLUGINS[] = {"dfscan", "minimal", "production", "search"};
const char* const JOBS[] = {"dfscan", "measurement", "production", "search", "surveillance"};
const char* const SUB_JOB = "SubJob";
const char* const TUNER = "TunerSettings";

QString outline(ISubSetting* node)
{
    QString result = node->getSettingType() + "(" + node->getDisplayName() + ")";
    for (const QString& set : node->parameterSetNames())
        result += "\n" + set + ": " + node->parameterSetText(set);
    for (int i = 0; i < node->childCount(); ++i)
        result += "\n" + outline(node->child(i));
    return result;
}

QString withFrequency(QString text, const QString& hertz)
{
    return text.replace(QRegularExpression("<CenterFrequency>\\d+</CenterFrequency>"),
                        "<CenterFrequency>" + hertz + "</CenterFrequency>");
}

/// A frequency-store list with an entry for each frequency.
/// \param tuner  text of its other settings
QString writeList(const QString& path, const QStringList& frequencies, const QString& tuner)
{
    QString text = "<FrequencyStoreList><Name>List</Name>";
    for (int i = 0; i < frequencies.size(); ++i) {
        text += QString("<FrequencyStoreEntry>%1<Profile_Data><ProfileID>%2</ProfileID>"
                        "<ProfileName>Channel %2</ProfileName></Profile_Data></FrequencyStoreEntry>")
                    .arg(withFrequency(tuner, frequencies.at(i)), QString::number(i + 1));
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write((text + "</FrequencyStoreList>").toUtf8()) < 0)
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

void setName(ISubSetting* node, const QString& name)
{
    QVERIFY(node->setDisplayName(name));
}
} // namespace

ISubSetting* TstPluginFrame::create(const LoadedPlugin& plugin, const QString& resource)
{
    JedTest::answerDialog(resource);
    return plugin->createSubSettingByUser(SUB_JOB, nullptr, nullptr);
}

ISubSetting* TstPluginFrame::carrierOf(ISubSetting* node, const QString& set)
{
    if (node->parameterSetNames().contains(set))
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (ISubSetting* found = carrierOf(node->child(i), set))
            return found;
    }
    return nullptr;
}

void TstPluginFrame::aFreshFactory()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    QCOMPARE(loaded->getName().toLower(), plugin);
    QVERIFY(!loaded->description().isEmpty());
    QVERIFY(!loaded->supportedJobTypes().isEmpty());
    QCOMPARE(loaded->supportedTypes(true), QStringList(SUB_JOB));
    QCOMPARE(loaded->supportedTypesOf(QString()), QStringList(SUB_JOB));
    QVERIFY(loaded->supportedTypesOf("unknown").isEmpty());
    QVERIFY(loaded->supportedTypes(false).contains(SUB_JOB));
    QCOMPARE(loaded->settingDisplayName("unknown"), QString("unknown"));
    for (const QString& type : loaded->supportedTypes(false)) {
        QVERIFY(!loaded->settingDisplayName(type).isEmpty());
        for (const QString& child : loaded->supportedTypesOf(type))
            QVERIFY(loaded->supportedTypes(false).contains(child));
    }
    QVERIFY(loaded->topLevelSettings().isEmpty() && loaded->resourceUse().isEmpty());
    QVERIFY(!loaded->isModified() && !loaded->isReadOnly());
    QVERIFY(loaded->isAppendable(nullptr, SUB_JOB));
    QCOMPARE(loaded->getMaxCount(SUB_JOB), std::numeric_limits<int>::max());
    QCOMPARE(loaded->getMaxCount("unknown"), std::numeric_limits<int>::max());
    QVERIFY(loaded->supportsImportProfile());
    QVERIFY(!loaded->canImportProfile(nullptr));
    QCOMPARE(loaded->manual().isEmpty(), plugin == "minimal");
    QCOMPARE(QFileInfo(loaded->manual()).isFile(), plugin != "minimal");
}

void TstPluginFrame::subJobsComeFromTheDialog()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    QSignalSpy modified(loaded.get(), &JEDVEPLUGIN::JEDSubSettingFactory::modifiedChanged);
    QSignalSpy changed(loaded.get(), &JEDVEPLUGIN::JEDSubSettingFactory::stateChanged);
    ISubSetting* const node = create(loaded);
    QVERIFY(node);
    QCOMPARE(loaded->topLevelSettings(), QList<ISubSetting*>{node});
    QCOMPARE(loaded->getSubjobCount(), 1);
    QCOMPARE(node->getSettingType(), QString(SUB_JOB));
    QCOMPARE(node->getDisplayName(), QString("Maritime HF"));
    QVERIFY(!node->parent());
    QVERIFY(node->problems().isEmpty());
    QVERIFY(node->supportsMimeText());
    QCOMPARE(modified.count(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<ISubSetting*>(), node);
    ISubSetting* const tuner = carrierOf(node, TUNER);
    QVERIFY(tuner);
    QVERIFY(tuner->parameterSetText(TUNER).contains("<CenterFrequency>2182000</CenterFrequency>"));
    QCOMPARE(create(loaded)->getDisplayName(), QString("Maritime HF 2"));
    QCOMPARE(modified.count(), 1);
}

void TstPluginFrame::cancelledDialogsChangeNothing()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    QVERIFY(!create(loaded, QString()));
    QVERIFY(loaded->topLevelSettings().isEmpty() && !loaded->isModified());
}

void TstPluginFrame::whatCannotBeCreated()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    loaded->setModified(false);
    QVERIFY(!loaded->createSubSetting(SUB_JOB, nullptr)); // Needs the dialog.
    QVERIFY(!loaded->createSubSetting("unknown", nullptr));
    QVERIFY(!loaded->createSubSetting("unknown", node));
    QVERIFY(!loaded->createSubSettingByUser(SUB_JOB, node, nullptr));
    const LoadedPlugin other(plugin, "/Other/");
    QVERIFY(!other->createSubSettingByUser(SUB_JOB, node, nullptr));
    QVERIFY(!other->isAppendable(node, SUB_JOB) && !other->isDeletable(node));
    QVERIFY(!other->deleteSubSetting(node) && !other->duplicateSubSetting(node));
    JobXml::Subjob subjob;
    QVERIFY(!other->writeSubjob(node, subjob, nullptr));
    QVERIFY(!loaded->writeSubjob(nullptr, subjob, nullptr));
    QVERIFY(!loaded->deleteSubSetting(nullptr) && !loaded->duplicateSubSetting(nullptr));
    QVERIFY(!loaded->isModified());
    QCOMPARE(loaded->getSubjobCount(), 1);
}

void TstPluginFrame::savedSubJobsAreValidAndReadBackEqual()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    ISubSetting* const tuner = carrierOf(node, TUNER);
    QVERIFY(tuner->setParameterSetText(TUNER, withFrequency(tuner->parameterSetText(TUNER), "8414500")));
    JobXml::Subjob subjob;
    QList<Problem> problems;
    QVERIFY(loaded->writeSubjob(node, subjob, &problems));
    QVERIFY(problems.isEmpty());
    QString reason;
    QVERIFY2(JedTest::isValidInJob(subjob, &reason), qPrintable(reason));
    QCOMPARE(subjob.GetSettings().GetFFM_Settings().GetCenterFrequency(), 8414500);
    QVERIFY(loaded->claimsSubjob(subjob));
    loaded->setModified(false);
    ISubSetting* const again = loaded->readSubjob(subjob, &problems);
    QVERIFY(again);
    QVERIFY(problems.isEmpty());
    QVERIFY(!loaded->isModified());
    QCOMPARE(outline(again), outline(node));
    JobXml::Subjob unchanged = subjob;
    QVERIFY(loaded->writeSubjob(again, unchanged, nullptr));
    QCOMPARE(unchanged.GetXmlString(false), subjob.GetXmlString(false));
}

void TstPluginFrame::exampleJobsStayAsTheyAre_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("job");
    for (const char* plugin : PLUGINS) {
        for (const char* job : JOBS)
            QTest::addRow("%s, %s", plugin, job) << QString(plugin) << QString(job);
    }
}

void TstPluginFrame::exampleJobsStayAsTheyAre()
{
    QFETCH(QString, plugin);
    QFETCH(QString, job);
    const LoadedPlugin loaded(plugin);
    const JobXml::Job example = JedTest::exampleJob(job);
    for (const JobXml::Subjob& subjob : example.GetSubjob()) {
        if (!loaded->claimsSubjob(subjob))
            continue;
        QList<Problem> problems;
        ISubSetting* const node = loaded->readSubjob(subjob, &problems);
        QVERIFY(node);
        JobXml::Subjob written = subjob;
        QVERIFY(loaded->writeSubjob(node, written, &problems));
        QVERIFY2(problems.isEmpty(), qPrintable(problems.value(0).text));
        QCOMPARE(written.GetXmlString(false), subjob.GetXmlString(false));
        // The editor has shown it meanwhile.
        QVERIFY(node->getWidget());
        for (int i = 0; i < node->childCount(); ++i)
            QVERIFY(node->child(i)->getWidget());
        QVERIFY(loaded->writeSubjob(node, written, &problems));
        QCOMPARE(written.GetXmlString(false), subjob.GetXmlString(false));
        ISubSetting* const copy = loaded->pasteMimeText(node->getMimeText(0), nullptr);
        QVERIFY(copy);
        setName(copy, node->getDisplayName());
        QCOMPARE(outline(copy), outline(node));
    }
}

void TstPluginFrame::everyExampleJobHasItsPlugin_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::newRow("dfscan") << "dfscan";
    QTest::newRow("measurement") << "dfscan";
    QTest::newRow("production") << "production";
    QTest::newRow("search") << "search";
    QTest::newRow("surveillance") << "search";
}

void TstPluginFrame::everyExampleJobHasItsPlugin()
{
    QFETCH(QString, plugin);
    const JobXml::Job job = JedTest::exampleJob(QTest::currentDataTag());
    for (const char* name : PLUGINS) {
        const LoadedPlugin loaded(name);
        loaded->slot_setCurrentJobType(
            JEDVEPLUGIN::JEDCommonHelper::jobXmlTypeToJobType(job.GetJobInformation().GetJobType()));
        for (const JobXml::Subjob& subjob : job.GetSubjob())
            QCOMPARE(loaded->claimsSubjob(subjob), name == plugin);
    }
}

void TstPluginFrame::listsOfFrequenciesAreImported()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    const QTemporaryDir folder;
    const QString file = writeList(folder.filePath("list.xml"), {"5000000", "7000000", "6000000"},
                                   carrierOf(node, TUNER)->parameterSetText(TUNER));
    QVERIFY(loaded->canImportProfile(node));
    loaded->setModified(false);
    const QList<ISubSetting*> made = loaded->importProfile(file, node);
    QCOMPARE(made.size(), 2);
    QCOMPARE(loaded->topLevelSettings(), QList<ISubSetting*>({node}) + made);
    QVERIFY(loaded->isModified());
    const auto frequency = [](ISubSetting* subjob) {
        return carrierOf(subjob, TUNER)
            ->parameterSetText(TUNER)
            .section("<CenterFrequency>", 1)
            .section('<', 0, 0);
    };
    QCOMPARE(node->getDisplayName(), QString("Channel 1"));
    QCOMPARE(frequency(node), QString("5000000"));
    QCOMPARE(made.at(0)->getDisplayName(), QString("Channel 2"));
    QCOMPARE(frequency(made.at(0)), QString("7000000"));
    QCOMPARE(made.at(1)->getDisplayName(), QString("Channel 3"));
    QCOMPARE(frequency(made.at(1)), QString("6000000"));
    QVERIFY(node->problems().isEmpty());
}

void TstPluginFrame::whatCannotBeImported()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    const QTemporaryDir folder;
    const QString file = writeList(folder.filePath("list.xml"), {"5000000", "6000000"}, "<FFM_Settings/>");
    const QString empty = writeList(folder.filePath("empty.xml"), {}, QString());
    loaded->setModified(false);
    JedTest::TraceRecorder traces; // Why a file is no list.
    QVERIFY(loaded->importProfile(folder.filePath("missing.xml"), node).isEmpty());
    QVERIFY(loaded->importProfile(JED_SOURCE_DIR "/installation/Jobs/search.xml", node).isEmpty());
    QVERIFY(loaded->importProfile(empty, node).isEmpty());
    QVERIFY(loaded->importProfile(file, nullptr).isEmpty());
    const LoadedPlugin other(plugin, "/Other/");
    QVERIFY(!other->canImportProfile(node));
    QVERIFY(other->importProfile(file, node).isEmpty());
    loaded->setReadOnly(true);
    QVERIFY(!loaded->canImportProfile(node));
    QVERIFY(loaded->importProfile(file, node).isEmpty());
    loaded->setReadOnly(false);
    QVERIFY(!loaded->isModified());
    QCOMPARE(loaded->getSubjobCount(), 1);
    ISubSetting* const bare = loaded->readSubjob(JedTest::subjobOn("HT720", "HF-2"), nullptr);
    QVERIFY(!loaded->canImportProfile(bare)); // It carries nothing yet.
}

void TstPluginFrame::editingTellsAndCounts()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const tuner = carrierOf(create(loaded), TUNER);
    loaded->setModified(false);
    QSignalSpy modified(loaded.get(), &JEDVEPLUGIN::JEDSubSettingFactory::modifiedChanged);
    QSignalSpy changed(loaded.get(), &JEDVEPLUGIN::JEDSubSettingFactory::stateChanged);
    const QString before = tuner->parameterSetText(TUNER);
    QVERIFY(tuner->setParameterSetText(TUNER, before));
    QCOMPARE(changed.count() + modified.count(), 0);
    QVERIFY(tuner->setParameterSetText(TUNER, withFrequency(before, "8414500")));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<ISubSetting*>(), tuner);
    QCOMPARE(modified.count(), 1);
    QCOMPARE(modified.at(0).at(0).toBool(), true);
    QVERIFY(loaded->isModified());
    loaded->setModified(false);
    loaded->setModified(false);
    QCOMPARE(modified.count(), 2);
}

void TstPluginFrame::parameterSetTextsUndo()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    ISubSetting* const tuner = carrierOf(node, TUNER);
    const QString before = tuner->parameterSetText(TUNER);
    const QString after = withFrequency(before, "8414500");
    QVERIFY(after != before);
    QVERIFY(tuner->setParameterSetText(TUNER, after));
    QCOMPARE(tuner->parameterSetText(TUNER), after);
    QVERIFY(tuner->setParameterSetText(TUNER, before));
    QCOMPARE(tuner->parameterSetText(TUNER), before);
    const QString header = node->parameterSetText(SUB_JOB);
    setName(node, "Renamed");
    QVERIFY(node->setParameterSetText(SUB_JOB, header));
    QCOMPARE(node->getDisplayName(), QString("Maritime HF"));
}

void TstPluginFrame::unreadableTextsAreRefused()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    ISubSetting* const tuner = carrierOf(node, TUNER);
    const QString before = outline(node);
    const QString otherReceiver =
        node->parameterSetText(SUB_JOB).replace("<BaseResource>HF-1<", "<BaseResource>HF-2<");
    for (const QString& text : {QString("no markup"), QString("<Other/>"), QString("<FFM_Settings>")})
        QVERIFY(!tuner->setParameterSetText(TUNER, text));
    for (const QString& text : {QString(), QString("<Job/>"), QString("<Subjob>"), otherReceiver})
        QVERIFY(!node->setParameterSetText(SUB_JOB, text));
    QVERIFY(!node->setParameterSetText("Unknown", "<FFM_Settings/>"));
    QCOMPARE(node->parameterSetText("Unknown"), QString());
    QCOMPARE(outline(node), before);
}

void TstPluginFrame::pastedTextsGiveTheSameSubtree()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    ISubSetting* const tuner = carrierOf(node, TUNER);
    tuner->setParameterSetText(TUNER, withFrequency(tuner->parameterSetText(TUNER), "8414500"));
    const QString before = outline(node);
    const QString text = node->getMimeText(0);
    const LoadedPlugin other(plugin, "/Other/");
    ISubSetting* const pasted = other->pasteMimeText(text, nullptr);
    QVERIFY(pasted);
    QVERIFY(other->isModified());
    QCOMPARE(outline(pasted), before);
    QCOMPARE(pasted->getMimeText(0), text);
    for (const QString& line : node->getMimeText(2).split('\n', Qt::SkipEmptyParts))
        QVERIFY(line.startsWith(QString(8, ' ')));
    QVERIFY(other->pasteMimeText(node->getMimeText(2), nullptr));
}

void TstPluginFrame::duplicatesHaveNamesOfTheirOwn()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    ISubSetting* const copy = loaded->duplicateSubSetting(node);
    QVERIFY(copy);
    QCOMPARE(loaded->topLevelSettings(), QList<ISubSetting*>({node, copy}));
    QCOMPARE(copy->getDisplayName(), QString("Maritime HF 2"));
    setName(copy, "Maritime HF");
    QCOMPARE(outline(copy), outline(node));
    ISubSetting* const tuner = carrierOf(copy, TUNER);
    tuner->setParameterSetText(TUNER, withFrequency(tuner->parameterSetText(TUNER), "8414500"));
    QVERIFY(carrierOf(node, TUNER)->parameterSetText(TUNER).contains("2182000"));
}

void TstPluginFrame::deletionIsUndoneByPasting()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    const QString before = outline(node);
    const QString text = node->getMimeText(0);
    loaded->setModified(false);
    QVERIFY(loaded->isDeletable(node));
    QVERIFY(loaded->deleteSubSetting(node));
    QVERIFY(loaded->isModified());
    QVERIFY(loaded->topLevelSettings().isEmpty());
    QVERIFY(!loaded->isDeletable(node)); // Not looked into: it is gone.
    QCOMPARE(outline(loaded->pasteMimeText(text, nullptr)), before);
}

void TstPluginFrame::malformedMimeTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("words") << "not a setting";
    QTest::newRow("markup") << "<a/>";
    QTest::newRow("list") << "[]";
    QTest::newRow("number") << "7";
    QTest::newRow("empty object") << "{}";
    QTest::newRow("no plug-in") << "{\"type\":\"SubJob\"}";
    QTest::newRow("another plug-in") << "{\"plugin\":\"Other\",\"type\":\"SubJob\"}";
    QTest::newRow("no type") << "{\"plugin\":\"Search\"}";
    QTest::newRow("unknown type") << "{\"plugin\":\"Search\",\"type\":\"Foo\"}";
    QTest::newRow("type of another level") << "{\"plugin\":\"Search\",\"type\":\"Scan\"}";
    QTest::newRow("no header") << "{\"plugin\":\"Search\",\"type\":\"SubJob\"}";
    QTest::newRow("sets that are none")
        << "{\"plugin\":\"Search\",\"type\":\"SubJob\",\"parameterSets\":[1,2]}";
    QTest::newRow("header that is none") << "{\"plugin\":\"Search\",\"type\":\"SubJob\",\"parameterSets\":[{"
                                            "\"name\":\"SubJob\",\"xml\":\"<a/>\"}]}";
    QTest::newRow("truncated") << "{\"plugin\":\"Search\",\"type\":\"SubJob\",\"parameterSets\":[{\"na";
    QTest::newRow("deep") << QString(100000, '[');
    QTest::newRow("unknown child") << "child";
    QTest::newRow("child too many") << "children";
    QTest::newRow("set of another type") << "set";
    QTest::newRow("set that cannot be read") << "xml";
    QTest::newRow("receiver of another plug-in") << "receiver";
    QTest::newRow("nested too deep") << "levels";
}

void TstPluginFrame::malformedMimeTexts()
{
    QFETCH(QString, text);
    const LoadedPlugin loaded("search");
    ISubSetting* const node = create(loaded);
    const QString whole = node->getMimeText(0);
    QJsonObject object = QJsonDocument::fromJson(whole.toUtf8()).object();
    QJsonArray children = object.value("children").toArray();
    QJsonArray sets = object.value("parameterSets").toArray();
    if (text == "child")
        children.append(QJsonObject{{"type", "Foo"}});
    if (text == "children")
        children.append(children.at(0));
    if (text == "set")
        sets.append(QJsonObject{{"name", "TunerSettings"}, {"xml", "<FFM_Settings/>"}});
    if (text == "xml")
        children.replace(0, QJsonObject{{"type", "Scan"},
                                        {"parameterSets", QJsonArray{QJsonObject{{"name", "ScanSettings"},
                                                                                 {"xml", "<Scan"}}}}});
    if (text == "receiver")
        sets.replace(0,
                     QJsonObject{{"name", "SubJob"},
                                 {"xml", JedTest::subjobOn("SignalRecorder", "REC-1").GetXmlString(false)}});
    for (int i = 0; text == "levels" && i < 70; ++i)
        children = QJsonArray{QJsonObject{{"type", "Scan"}, {"children", children}}};
    object.insert("children", children);
    object.insert("parameterSets", sets);
    const bool isChanged = object != QJsonDocument::fromJson(whole.toUtf8()).object();
    const QString pasted = isChanged ? QString::fromUtf8(QJsonDocument(object).toJson()) : text;
    loaded->setModified(false);
    QVERIFY(!loaded->pasteMimeText(pasted, nullptr));
    QVERIFY(!loaded->isModified());
    QCOMPARE(loaded->topLevelSettings(), QList<ISubSetting*>{node});
    QVERIFY(loaded->pasteMimeText(whole, nullptr));
}

void TstPluginFrame::readOnlyFactoriesChangeNothing()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    const QString text = node->getMimeText(0);
    loaded->setReadOnly(true);
    QVERIFY(node->isReadOnly() && carrierOf(node, TUNER)->isReadOnly());
    QVERIFY(!node->isDropEnabled());
    QVERIFY(!loaded->isAppendable(nullptr, SUB_JOB) && !loaded->isDeletable(node));
    QVERIFY(!loaded->createSubSettingByUser(SUB_JOB, nullptr, nullptr));
    QVERIFY(!loaded->pasteMimeText(text, nullptr) && !loaded->duplicateSubSetting(node));
    QVERIFY(!loaded->deleteSubSetting(node));
    ISubSetting* const read = loaded->readSubjob(JedTest::subjobOn("HT720", "HF-2"), nullptr);
    QVERIFY(read && read->isReadOnly());
    const auto* const tabs = qobject_cast<QTabWidget*>(read->getWidget());
    QVERIFY(tabs && tabs->isEnabled()); // Its pages can be leafed through.
    QVERIFY(!tabs->widget(0)->isEnabled());
    loaded->setReadOnly(false);
    QVERIFY(!read->isReadOnly() && tabs->widget(0)->isEnabled());
    QVERIFY(loaded->deleteSubSetting(node));
}

void TstPluginFrame::receiversThatAreInUse()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const first = create(loaded);
    JobXml::Subjob subjob = JedTest::subjobOn("HT720", "VUHF-3");
    JobXml::Detector detector;
    detector.SetType(JobXml::Detector::TYPE_SIGNALDETECTOR);
    detector.SetDSCChannels(3);
    detector.SetBaseResource("VUHF-CH");
    JobXml::AutonomousSCP scp;
    scp.SetType(JobXml::AutonomousSCP::TYPE_HT720);
    scp.SetBaseResource("VUHF-2");
    scp.SetCount(2);
    detector.AppendAutonomousSCP(scp);
    subjob.AppendDetector(detector);
    ISubSetting* const second = loaded->readSubjob(subjob, nullptr);
    QStringList uses;
    for (const ResourceUse& use : loaded->resourceUse()) {
        QVERIFY(use.setting == first || use.setting == second);
        uses.append(QString("%1 %2/%3 %4")
                        .arg(use.setting == first ? "first" : "second", use.type, use.baseResource)
                        .arg(use.count));
    }
    QCOMPARE(uses, QStringList({"first HT720/HF-1 1", "second HT720/VUHF-3 1", "second HT720/VUHF-CH 3",
                                "second HT720/VUHF-2 2"}));
}

void TstPluginFrame::clearingLeavesNothing()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    create(loaded);
    create(loaded);
    loaded->clear();
    QVERIFY(loaded->topLevelSettings().isEmpty());
    QVERIFY(!loaded->isModified());
    QCOMPARE(loaded->getSubjobCount(), 0);
}

void TstPluginFrame::subJobsAreRenamed()
{
    QFETCH(QString, plugin);
    const LoadedPlugin loaded(plugin);
    ISubSetting* const node = create(loaded);
    loaded->setModified(false);
    QVERIFY(!node->setDisplayName("") && !node->setDisplayName("  "));
    QVERIFY(!loaded->isModified());
    QVERIFY(node->setDisplayName(" Harbour <1> "));
    QVERIFY(loaded->isModified());
    QCOMPARE(node->getDisplayName(), QString("Harbour <1>"));
    QCOMPARE(node->getToolTip(), QString("Harbour <1>"));
    JobXml::Subjob subjob;
    QVERIFY(loaded->writeSubjob(node, subjob, nullptr));
    QCOMPARE(subjob.GetName(), QString("Harbour <1>"));
}

void TstPluginFrame::pluginsOnTheKitAreSmall_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<int>("lines");
    QTest::newRow("minimal") << "minimal" << 120;
    QTest::newRow("production") << "production" << 400;
    QTest::newRow("dfscan") << "dfscan" << 400;
    QTest::newRow("search") << "search" << 400;
}

void TstPluginFrame::pluginsOnTheKitAreSmall()
{
    QFETCH(QString, plugin);
    QFETCH(int, lines);
    const QDir folder(JED_SOURCE_DIR "/plugins/" + plugin);
    int count = 0;
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        count += file.readAll().count('\n');
    }
    QVERIFY(count > 0);
    QVERIFY2(count <= lines, qPrintable(QString::number(count)));
}

JED_TEST_MAIN(TstPluginFrame)
#include "tst_pluginframe.moc"
