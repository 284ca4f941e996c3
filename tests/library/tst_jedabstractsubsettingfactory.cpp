#include "componentdescriptor.h"
#include "jedabstractsubsettingfactory.h"
#include "resourcedescription.h"
#include "subjobwidget.h"

#include <quilappstartup/cfgcenter.h>
#include <support/samplefactory.h>
#include <support/samplenode.h>
#include <support/testmain.h>
#include <support/tracerecorder.h>
#include <values/tree.h>
#include <velmogui/guicomponentcommon.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <QPixmap>
#include <QTemporaryDir>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JEDAbstractSubSettingFactory;
using JEDVEPLUGIN::ResourceDescription;

namespace {
/// A plug-in's factory that lets tests at what only plug-ins reach.
class PluginFactory : public StubFactory<JEDAbstractSubSettingFactory>
{
public:
    explicit PluginFactory(const QString& name = QStringLiteral("Sample"), bool detector = false,
                           bool preClassifier = false)
        : StubFactory(name, detector, preClassifier)
    {
    }

    using JEDAbstractSubSettingFactory::countResourceDescription;
    using JEDAbstractSubSettingFactory::fillResourceDescriptions;
    using JEDAbstractSubSettingFactory::findResourceDescription;
    using JEDAbstractSubSettingFactory::getParameterSet;
    using JEDAbstractSubSettingFactory::guiComponent;
    using JEDAbstractSubSettingFactory::isChildSetting;
    using JEDAbstractSubSettingFactory::m_spare;
    using JEDAbstractSubSettingFactory::m_spareNumber;
    using JEDAbstractSubSettingFactory::parameterNode;
    using JEDAbstractSubSettingFactory::QuestionMessage;
    using JEDAbstractSubSettingFactory::resourceDescriptions;
    using JEDAbstractSubSettingFactory::settingIcons;
    using JEDAbstractSubSettingFactory::subJobWidget;
    using JEDAbstractSubSettingFactory::subSettings;
    using JEDAbstractSubSettingFactory::WarningMessage;

    QStringList resources() const
    {
        QStringList result;
        for (const auto& description : resourceDescriptions)
            result.append(description->getName());
        return result;
    }
};

/// A node that tells when it is deleted.
class MortalNode : public SampleNode
{
public:
    explicit MortalNode(bool* isGone)
        : SampleNode("SubJob")
        , m_isGone(isGone)
    {
    }
    ~MortalNode() override { *m_isGone = true; }

private:
    bool* m_isGone;
};

struct TunerText
{
    const char* file;
    const char* name;
    const char* type;
    const char* base;
    const char* components; // "type=library" between blanks.
};

const TunerText TUNERS[] = {
    {"1.xml", "first", "HT720", "A", "Tuner=RedComponent Fft=GuiComponent"},
    {"2.xml", "second", "HT720", "B",
     "Tuner=BlueComponent Scan=AbsentComponent Fft=RedComponent Df=BlueComponent"},
    {"3.xml", "third", "HT720", "A", "Tuner=RedComponent"},
    {"4.xml", "fourth", "TRV9KScanSettings", "A", "Scan=RedComponent Tuner=ReasonComponent Df=BlueComponent"},
    {"5.xml", "fifth", "DirectionFinder", "A", "Tuner=NumberComponent Df=BlueComponent"},
    {"6.xml", "sixth", "MeasurementReceiver", "A", ""},
};

QString textOf(const TunerText& tuner)
{
    QString components;
    for (const QString& component : QString(tuner.components).split(' ', Qt::SkipEmptyParts))
        components += QString("<Component type='%1' name='%2'/>")
                          .arg(component.section('=', 0, 0), component.section('=', 1));
    return QString("<TunerProperties name='%1' type='%2' baseresource='%3' quantity='1' version='1.2'>%4"
                   "</TunerProperties>")
        .arg(tuner.name, tuner.type, tuner.base, components);
}

IDllInstance* loaded(const QString& library)
{
    return CfgCenter::Instance()->GetDllInstanceByFileName(library + ".dll", QString());
}

QColor colorOf(const QPixmap* icon)
{
    return icon ? icon->toImage().pixelColor(0, 0) : QColor();
}

QStringList ofTheFactory(const QStringList& traces)
{
    QStringList result;
    for (const QString& trace : traces) {
        if (trace.startsWith("jedabstractsubsettingfactory:"))
            result.append(trace.section(": ", 1));
    }
    return result;
}

/// Does something with the next message box that appears.
template <class Action>
void withNextBox(Action action)
{
    QTimer::singleShot(50, qApp,
                       [action] { action(qobject_cast<QMessageBox*>(QApplication::activeModalWidget())); });
}
} // namespace

class TstJedAbstractSubSettingFactory : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void aFreshFactoryHasNothing();
    void classNameOfTheMetaObject();
    void onlySubJobsNeedTheUser_data();
    void onlySubJobsNeedTheUser();
    void receiversAreChosenByTypeAndComponents_data();
    void receiversAreChosenByTypeAndComponents();
    void theSecondChoiceReplacesTheFirst();
    void receiversAreFoundByBaseResourceAndType();
    void oneComponentIsLoadedPerType();
    void iconsAreCopies();
    void iconsOfThePluginStay();
    void aReasonEndsLoadingAndIsTraced();
    void anythingElseEndsLoadingAndIsTraced();
    void faultsAreTracedOnlyIfAskedFor();
    void theNodeLiesBelowThePath();
    void theNodeLiesBelowTheComponent();
    void aNodeThatIsThereIsTaken();
    void withoutANodeTheRestIsDone();
    void theSubJobWidgetIsHidden_data();
    void theSubJobWidgetIsHidden();
    void unloadingReleasesComponentsAndWidget();
    void aDeletedWidgetIsForgotten();
    void theDestructorReleasesAllButTheSettings();
    void parameterSetsOfAComponent();
    void warnings();
    void questions_data();
    void questions();
    void descendantsAreChildSettings();
    void readOnlyReachesAllNodes();

private:
    QTemporaryDir m_installation;
};

void TstJedAbstractSubSettingFactory::initTestCase()
{
    qunsetenv(CfgCenter::ENVIRONMENT_VARIABLE);
    const QDir folder(m_installation.path());
    QVERIFY(folder.mkpath("TemplateFolder"));
    QFile ini(folder.filePath(CfgCenter::INI_FILE_NAME));
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("[Administration]\nVelmoDataDir = .\n[JobManagement]\nTemplateFolder = TemplateFolder\n");
    ini.close();
    for (const TunerText& tuner : TUNERS) {
        QFile file(folder.filePath(QString("TemplateFolder/") + tuner.file));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(textOf(tuner).toUtf8());
    }
    CfgCenter::Instance()->SetInstallation(m_installation.path());
    CfgCenter::Instance()->AddComponentFolder(JED_TEST_COMPONENTS);
    JedTest::TraceRecorder traces;
    const int count = ResourceDescription::readAllResourceFiles().size();
    QVERIFY2(count == 6, qPrintable(traces.take().join("; ")));
}

void TstJedAbstractSubSettingFactory::cleanup()
{
    for (const char* library :
         {"RedComponent", "BlueComponent", "GuiComponent", "ReasonComponent", "NumberComponent"})
        QVERIFY2(!loaded(library), library);
}

void TstJedAbstractSubSettingFactory::aFreshFactoryHasNothing()
{
    const PluginFactory factory("Fresh");
    QCOMPARE(factory.getName(), QString("Fresh"));
    QVERIFY(!factory.guiComponent && !factory.m_spare && !factory.parameterNode && !factory.subJobWidget);
    QCOMPARE(factory.m_spareNumber, 1);
    QVERIFY(factory.subSettings.isEmpty() && factory.resourceDescriptions.isEmpty());
    QVERIFY(factory.settingIcons.isEmpty());
    QCOMPARE(factory.getSubjobCount(), 0);
    QVERIFY(!factory.getSettingIcon("Tuner"));
}

void TstJedAbstractSubSettingFactory::classNameOfTheMetaObject()
{
    QCOMPARE(JEDAbstractSubSettingFactory::staticMetaObject.className(),
             "JEDVEPLUGIN::JEDAbstractSubSettingFactory");
    const QMetaObject* above = JEDAbstractSubSettingFactory::staticMetaObject.superClass();
    QCOMPARE(above->className(), "JEDVEPLUGIN::JEDSubSettingFactory");
    QCOMPARE(JEDAbstractSubSettingFactory::staticMetaObject.methodCount(), above->methodCount());
}

void TstJedAbstractSubSettingFactory::onlySubJobsNeedTheUser_data()
{
    QTest::addColumn<bool>("needs");
    QTest::newRow("SubJob") << true;
    QTest::newRow("subjob") << false;
    QTest::newRow("SubJob ") << false;
    QTest::newRow("GeneralSettings") << false;
    QTest::newRow("") << false;
}

void TstJedAbstractSubSettingFactory::onlySubJobsNeedTheUser()
{
    QFETCH(bool, needs);
    QCOMPARE(PluginFactory().needsUserInputOnCreation(QTest::currentDataTag()), needs);
}

void TstJedAbstractSubSettingFactory::receiversAreChosenByTypeAndComponents_data()
{
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QStringList>("components");
    QTest::addColumn<QStringList>("names");
    const QStringList all{"first", "second", "third"};
    QTest::newRow("one type") << QStringList("HT720") << QStringList() << all;
    QTest::newRow("in the order of the files")
        << QStringList{"DirectionFinder", "HT720"} << QStringList() << all + QStringList("fifth");
    QTest::newRow("one component") << QStringList("HT720") << QStringList("Fft")
                                   << QStringList{"first", "second"};
    QTest::newRow("all of several") << QStringList("HT720") << QStringList{"Fft", "Scan"}
                                    << QStringList("second");
    QTest::newRow("one missing") << QStringList("HT720") << QStringList{"Fft", "None"} << QStringList();
    QTest::newRow("by name is not by type")
        << QStringList("HT720") << QStringList("GuiComponent") << QStringList();
    QTest::newRow("case of the type") << QStringList("ht720") << QStringList() << QStringList();
    QTest::newRow("no type") << QStringList() << QStringList() << QStringList();
}

void TstJedAbstractSubSettingFactory::receiversAreChosenByTypeAndComponents()
{
    QFETCH(QStringList, types);
    QFETCH(QStringList, components);
    PluginFactory factory;
    factory.fillResourceDescriptions(types, components);
    QTEST(factory.resources(), "names");
}

void TstJedAbstractSubSettingFactory::theSecondChoiceReplacesTheFirst()
{
    PluginFactory factory;
    factory.fillResourceDescriptions({"HT720"}, {});
    factory.fillResourceDescriptions({"DirectionFinder"}, {});
    QCOMPARE(factory.resources(), QStringList("fifth"));
}

void TstJedAbstractSubSettingFactory::receiversAreFoundByBaseResourceAndType()
{
    PluginFactory factory;
    factory.fillResourceDescriptions({"HT720", "TRV9KScanSettings"}, {});
    QCOMPARE(factory.findResourceDescription("A", "HT720"), factory.resourceDescriptions.value(0));
    QCOMPARE(std::as_const(factory).findResourceDescription("A", "TRV9KScanSettings"),
             factory.resourceDescriptions.value(3));
    QVERIFY(!factory.findResourceDescription("A", "DirectionFinder"));
    QVERIFY(!factory.findResourceDescription("a", "HT720"));
    QCOMPARE(factory.countResourceDescription("A", "HT720"), 2);
    QCOMPARE(factory.countResourceDescription("B", "HT720"), 1);
    QCOMPARE(factory.countResourceDescription("A", "TRV9KScanSettings"), 1);
    QCOMPARE(factory.countResourceDescription("C", "HT720"), 0);
}

void TstJedAbstractSubSettingFactory::oneComponentIsLoadedPerType()
{
    JedTest::TraceRecorder traces;
    PluginFactory factory;
    factory.fillResourceDescriptions({"HT720"}, {});
    factory.initialize("/OnePerType/", nullptr);
    // Tuner and Fft as the first receiver names them, Scan cannot be loaded, Df comes after it.
    QCOMPARE(colorOf(factory.getSettingIcon("Tuner")), QColor(Qt::red));
    QCOMPARE(colorOf(factory.getSettingIcon("Df")), QColor(Qt::blue));
    QVERIFY(!factory.getSettingIcon("Fft"));
    QVERIFY(!factory.getSettingIcon("Scan"));
    QVERIFY(!factory.getSettingIcon("tuner"));
    QVERIFY(loaded("RedComponent") && loaded("GuiComponent") && loaded("BlueComponent"));
    CfgCenter::Instance()->DestroyDllInstanceByPointer(loaded("RedComponent"));
    QVERIFY(!loaded("RedComponent"));
    QCOMPARE(ofTheFactory(traces.take()), QStringList());
}

void TstJedAbstractSubSettingFactory::iconsAreCopies()
{
    PluginFactory factory;
    factory.fillResourceDescriptions({"HT720"}, {"Scan"});
    {
        JedTest::TraceRecorder traces;
        factory.initialize("/Copies/", nullptr);
    }
    factory.unloadComponents();
    QVERIFY(!loaded("BlueComponent"));
    QCOMPARE(colorOf(factory.getSettingIcon("Tuner")), QColor(Qt::blue));
    QCOMPARE(factory.getSettingIcon("Tuner"), factory.settingIcons.value("Tuner"));
}

void TstJedAbstractSubSettingFactory::iconsOfThePluginStay()
{
    PluginFactory factory;
    auto* const own = new QPixmap(2, 2);
    factory.settingIcons.insert("Tuner", own);
    factory.fillResourceDescriptions({"HT720"}, {"Fft"});
    JedTest::TraceRecorder traces;
    factory.initialize("/OwnIcons/", nullptr);
    QCOMPARE(factory.getSettingIcon("Tuner"), own);
    QVERIFY(loaded("RedComponent"));
}

void TstJedAbstractSubSettingFactory::aReasonEndsLoadingAndIsTraced()
{
    JedTest::TraceRecorder traces;
    PluginFactory factory;
    factory.fillResourceDescriptions({"TRV9KScanSettings"}, {});
    factory.initialize("/Reason/", nullptr);
    QCOMPARE(ofTheFactory(traces.take()), QStringList("no picture"));
    QCOMPARE(colorOf(factory.getSettingIcon("Scan")), QColor(Qt::red));
    QVERIFY(!factory.getSettingIcon("Tuner") && !factory.getSettingIcon("Df"));
    QVERIFY(!loaded("BlueComponent"));
    QVERIFY(factory.parameterNode && factory.subJobWidget);
}

void TstJedAbstractSubSettingFactory::anythingElseEndsLoadingAndIsTraced()
{
    JedTest::TraceRecorder traces;
    PluginFactory factory;
    factory.fillResourceDescriptions({"DirectionFinder"}, {});
    factory.initialize("/Number/", nullptr);
    QCOMPARE(ofTheFactory(traces.take()),
             QStringList("JEDAbstractSubSetting::initialize(): Exception thrown"));
    QVERIFY(!loaded("BlueComponent"));
    QVERIFY(factory.parameterNode && factory.subJobWidget);
}

void TstJedAbstractSubSettingFactory::faultsAreTracedOnlyIfAskedFor()
{
    const JedTest::TraceMask mask(~0x20u);
    JedTest::TraceRecorder traces;
    PluginFactory factory;
    factory.fillResourceDescriptions({"DirectionFinder", "TRV9KScanSettings"}, {});
    factory.initialize("no//path/", nullptr);
    QCOMPARE(ofTheFactory(traces.take()), QStringList());
}

void TstJedAbstractSubSettingFactory::theNodeLiesBelowThePath()
{
    PluginFactory factory("Plugin");
    factory.initialize("/Editor/Plugins/", nullptr);
    QVERIFY(factory.parameterNode);
    QCOMPARE(factory.parameterNode->GetPathName(), QString("/Editor/Plugins/Plugin"));
    QVERIFY(!factory.guiComponent);
}

void TstJedAbstractSubSettingFactory::theNodeLiesBelowTheComponent()
{
    VelmoGui::GuiComponentCommon component("/Component/Of/Plugins/");
    PluginFactory factory("Plugin");
    factory.initialize("/Elsewhere/", &component);
    QVERIFY(factory.parameterNode);
    QCOMPARE(factory.parameterNode->GetPathName(), QString("/Component/Of/Plugins/Plugin"));
    QVERIFY(!Tree::Instance()->FindByPath("/Elsewhere"));
    QCOMPARE(factory.guiComponent, &component);
}

void TstJedAbstractSubSettingFactory::aNodeThatIsThereIsTaken()
{
    Node* const there = Tree::Instance()->CreatePath("There/Plugin");
    PluginFactory factory("Plugin");
    factory.initialize("/There/", nullptr);
    QCOMPARE(factory.parameterNode, there);
}

void TstJedAbstractSubSettingFactory::withoutANodeTheRestIsDone()
{
    VelmoGui::GuiComponentCommon component("/No//Node/");
    JedTest::TraceRecorder traces;
    PluginFactory factory("Plugin");
    factory.initialize(QString(), &component);
    QCOMPARE(ofTheFactory(traces.take()), QStringList("unable to create VT node"));
    QVERIFY(!factory.parameterNode);
    QCOMPARE(factory.guiComponent, &component);
    QVERIFY(factory.subJobWidget);
}

void TstJedAbstractSubSettingFactory::theSubJobWidgetIsHidden_data()
{
    QTest::addColumn<bool>("detector");
    QTest::addColumn<bool>("preClassifier");
    QTest::newRow("neither") << false << false;
    QTest::newRow("detector") << true << false;
    QTest::newRow("pre-classifier") << false << true;
    QTest::newRow("both") << true << true;
}

void TstJedAbstractSubSettingFactory::theSubJobWidgetIsHidden()
{
    QFETCH(bool, detector);
    QFETCH(bool, preClassifier);
    PluginFactory factory("Plugin", detector, preClassifier);
    factory.initialize("/Widget/", nullptr);
    QVERIFY(factory.subJobWidget);
    QVERIFY(!factory.subJobWidget->parent());
    QVERIFY(factory.subJobWidget->isHidden());
    const auto isShown = [&factory](const char* name) {
        return !factory.subJobWidget->findChild<QWidget*>(name)->isHidden();
    };
    QCOMPARE(isShown("subjobWidget_Detector"), detector);
    QCOMPARE(isShown("subJobWidget_PreClassifier"), preClassifier);
}

void TstJedAbstractSubSettingFactory::unloadingReleasesComponentsAndWidget()
{
    PluginFactory factory;
    factory.fillResourceDescriptions({"HT720"}, {"Fft"});
    JedTest::TraceRecorder traces;
    factory.initialize("/Unload/", nullptr);
    QWidget window;
    const QPointer<JEDVEPLUGIN::SubJobWidget> widget = factory.subJobWidget;
    widget->setParent(&window);
    factory.unloadComponents();
    QVERIFY(!loaded("RedComponent") && !loaded("GuiComponent") && !loaded("BlueComponent"));
    QVERIFY(widget.isNull() && factory.subJobWidget.isNull());
    QVERIFY(window.children().isEmpty());
    factory.unloadComponents();
    QVERIFY(factory.getSettingIcon("Tuner"));
}

void TstJedAbstractSubSettingFactory::aDeletedWidgetIsForgotten()
{
    PluginFactory factory;
    factory.initialize("/Deleted/", nullptr);
    delete factory.subJobWidget;
    QVERIFY(factory.subJobWidget.isNull());
    factory.unloadComponents();
}

void TstJedAbstractSubSettingFactory::theDestructorReleasesAllButTheSettings()
{
    JedTest::TraceRecorder traces;
    bool isGone = false;
    MortalNode node(&isGone);
    auto factory = std::make_unique<PluginFactory>();
    factory->fillResourceDescriptions({"HT720"}, {});
    factory->initialize("/Destructor/", nullptr);
    factory->subSettings.append(&node);
    const QPointer<JEDVEPLUGIN::SubJobWidget> widget = factory->subJobWidget;
    const Node* const parameterNode = factory->parameterNode;
    factory.reset();
    QVERIFY(!loaded("RedComponent") && !loaded("BlueComponent"));
    QVERIFY(widget.isNull());
    QVERIFY(!isGone);
    QCOMPARE(Tree::Instance()->FindNode("/Destructor/Sample"), parameterNode);
}

void TstJedAbstractSubSettingFactory::parameterSetsOfAComponent()
{
    Node* const set = Tree::Instance()->CreatePath("/Sets/TunerSettings");
    VelmoGui::GuiComponentCommon component("/Sets/");
    PluginFactory factory;
    QCOMPARE(factory.getParameterSet("TunerSettings", &component), set);
    QVERIFY(!factory.getParameterSet("tunersettings", &component));
    QVERIFY(!factory.getParameterSet(QString(), &component));
    QVERIFY(!factory.getParameterSet("TunerSettings", nullptr));
}

void TstJedAbstractSubSettingFactory::warnings()
{
    PluginFactory factory("Plugin");
    bool isSeen = false;
    withNextBox([&isSeen](QMessageBox* box) {
        QVERIFY(box);
        isSeen = true;
        const bool isWarning = box->icon() == QMessageBox::Warning && !box->parent() &&
                               box->windowTitle() == "Plugin" && box->text() == "A text" &&
                               box->standardButtons() == QMessageBox::Ok;
        box->close();
        QVERIFY(isWarning);
    });
    factory.WarningMessage("A text");
    QVERIFY(isSeen);
}

void TstJedAbstractSubSettingFactory::questions_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("answer");
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << int(QMessageBox::No) << false;
    QTest::newRow("closed") << int(QMessageBox::NoButton) << false;
}

void TstJedAbstractSubSettingFactory::questions()
{
    QFETCH(int, button);
    PluginFactory factory("Plugin");
    bool isSeen = false;
    withNextBox([&isSeen, button](QMessageBox* box) {
        QVERIFY(box);
        isSeen = true;
        const bool isQuestion = box->icon() == QMessageBox::Question && !box->parent() &&
                                box->windowTitle() == "Plugin" && box->text() == "A question" &&
                                box->standardButtons() == (QMessageBox::Yes | QMessageBox::No);
        if (QAbstractButton* const pressed = box->button(QMessageBox::StandardButton(button)))
            pressed->click();
        else
            box->close();
        QVERIFY(isQuestion);
    });
    QTEST(factory.QuestionMessage("A question"), "answer");
    QVERIFY(isSeen);
}

void TstJedAbstractSubSettingFactory::descendantsAreChildSettings()
{
    PluginFactory factory;
    SampleNode top("A");
    auto* const first = new SampleNode("A");
    auto* const second = new SampleNode("B");
    auto* const below = new SampleNode("C");
    auto* const deepest = new SampleNode("D");
    top.adopt(first);
    top.adopt(second);
    second->adopt(below);
    below->adopt(deepest);
    SampleNode stranger("A");
    stranger.setParent(&top); // The parent link alone does not count.
    for (ISubSetting* node : QList<ISubSetting*>{first, second, below, deepest})
        QVERIFY(factory.isChildSetting(&top, node));
    QVERIFY(factory.isChildSetting(second, deepest));
    QVERIFY(!factory.isChildSetting(first, second));
    QVERIFY(!factory.isChildSetting(deepest, &top));
    QVERIFY(!factory.isChildSetting(&top, &top));
    QVERIFY(!factory.isChildSetting(&top, &stranger));
    QVERIFY(!factory.isChildSetting(&top, nullptr));
    QVERIFY(!factory.isChildSetting(nullptr, &top));
}

void TstJedAbstractSubSettingFactory::readOnlyReachesAllNodes()
{
    PluginFactory factory;
    SampleNode first("SubJob");
    SampleNode second("SubJob");
    auto* const below = new SampleNode("A");
    auto* const deepest = new SampleNode("B");
    second.adopt(below);
    below->adopt(deepest);
    factory.subSettings = {&first, &second};
    QCOMPARE(factory.getSubjobCount(), 2);
    for (const bool readOnly : {true, false}) {
        factory.setReadOnly(readOnly);
        QCOMPARE(factory.isReadOnly(), readOnly);
        for (const ISubSetting* node : QList<ISubSetting*>{&first, &second, below, deepest})
            QCOMPARE(node->isReadOnly(), readOnly);
    }
}

JED_TEST_MAIN(TstJedAbstractSubSettingFactory)
#include "tst_jedabstractsubsettingfactory.moc"
