#include "loadedplugin.h"

#include <mapviewlayermanager.h>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <session/jobsession.h>
#include <support/mapshapes.h>
#include <support/testmain.h>

using JedTest::LoadedPlugin;
using JedTest::MapShapes;
using JedTest::RecordingMap;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JEDSubSettingFactory;
using JEDVEPLUGIN::MapViewLayerManager;
using JEDVEPLUGIN::Problem;

namespace {
const QString SET = "DF_Settings";
const QString LAYER = "Search / Direction finding";

QString serverName()
{
    return QString("jed-regions-%1").arg(QCoreApplication::applicationPid());
}

// The text of a field of the region.
QString field(ISubSetting* node, const QString& name)
{
    const QString xml = node->parameterSetText(SET);
    return xml.section("<Region>", 1).section("<" + name + ">", 1).section("</", 0, 0);
}

QString edges(ISubSetting* node)
{
    QStringList texts;
    for (const char* name : {"West", "South", "East", "North"})
        texts.append(field(node, name));
    return texts.join(' ');
}

QStringList corners(ISubSetting* node)
{
    QStringList texts = node->parameterSetText(SET).split("<Corner>").mid(1);
    for (QString& text : texts)
        text = text.section("</", 0, 0);
    return texts;
}

// The same text with other content of a field.
QString changed(const QString& xml, const QString& name, const QString& content)
{
    const QString begin = "<" + name + ">";
    const int from = xml.indexOf(begin, xml.indexOf("<Region>")) + begin.size();
    return xml.left(from) + content + xml.mid(xml.indexOf("</" + name + ">", from));
}
} // namespace

class TstSearchRegions : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void nobodyLooksForAMapWithoutARegion();
    void activeRegionsAreDrawn();
    void newSettingsHaveNone();
    void receiversWithoutARegionHaveNone();
    void toolTipsTellTheNumbers();
    void numbersMoveTheShape();
    void cornersAreDrawnAsAPolygon();
    void cornersThatAreNone_data();
    void cornersThatAreNone();
    void regionsThatEndBeforeTheyBegin();
    void shapeHasTheNameOfTheSubJob();
    void shapeMovesTheNumbers_data();
    void shapeMovesTheNumbers();
    void movedShapeStaysWhereItIs();
    void movedPolygonMovesItsCorners();
    void moveIsOneStepOfUndo();
    void regionDeletedOnTheMapIsInactive();
    void deletionOnTheMapIsUndone();
    void deletedSettingsTakeTheirShapesAlong();
    void userDrawsTheRegion();
    void oneRegionIsDrawnAtATime();
    void drawingIsGivenUp_data();
    void drawingIsGivenUp();
    void readOnlyRegionsStay();
    void regionIsSelectedWithItsEditor();
    void shapesAreBackAfterTheMap();
    void editsWithoutAMapAreShownLater();
    void pluginsKeepTheirShapesApart();
    void unloadedPluginTakesItsShapesAlong();

private:
    static ISubSetting* bearing(ISubSetting* subjob)
    {
        return subjob->settingAtTypePosition("DirectionFinding", 0);
    }
    ISubSetting* harbour(const LoadedPlugin& plugin);
    void deleteOnMap(const QString& name);
    void moveOnMap(const QString& name, const QVector<QPointF>& points);

    std::unique_ptr<RecordingMap> m_map;
    std::unique_ptr<MapShapes> m_shapes;
};

void TstSearchRegions::initTestCase()
{
    JedTest::useStation();
    qputenv("JED_MAPVIEW", serverName().toUtf8());
    QCoreApplication::setApplicationName(serverName());
}

void TstSearchRegions::init()
{
    if (QTest::currentTestFunction() == QByteArray("nobodyLooksForAMapWithoutARegion"))
        return;
    if (m_map)
        return;
    m_map = std::make_unique<RecordingMap>(serverName());
    m_shapes = std::make_unique<MapShapes>(*m_map);
    QVERIFY(m_map->start());
}

void TstSearchRegions::cleanup()
{
    if (m_shapes)
        QTRY_COMPARE(m_shapes->texts(), QStringList());
}

// The node of a region: 4.75, 57.75 to 6.5, 58.75.
ISubSetting* TstSearchRegions::harbour(const LoadedPlugin& plugin)
{
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_SURVEILLANCE);
    ISubSetting* const subjob =
        plugin->readSubjob(JedTest::exampleJob("surveillance").GetSubjob().at(1), nullptr);
    [&] {
        QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4.75,58.75 6.5,57.75"));
    }();
    return bearing(subjob);
}

// As the user does it.
void TstSearchRegions::deleteOnMap(const QString& name)
{
    const int group = m_shapes->named(name).group;
    m_shapes->drop(group);
    m_map->send(MAP_GROUP_DELETED, group);
}

void TstSearchRegions::moveOnMap(const QString& name, const QVector<QPointF>& points)
{
    const int group = m_shapes->named(name).group;
    m_shapes->move(group, points);
    m_map->send(MAP_GROUP_RESIZED, group, points);
}

void TstSearchRegions::nobodyLooksForAMapWithoutARegion()
{
    const LoadedPlugin plugin("search");
    JobXml::Subjob subjob = JedTest::exampleJob("surveillance").GetSubjob().at(1);
    subjob.GetSettings().GetDF_Settings().GetRegion().SetActive(false);
    ISubSetting* const node = bearing(plugin->readSubjob(subjob, nullptr));
    QTest::qWait(50);
    QVERIFY(!QCoreApplication::instance()->findChild<MapViewLayerManager*>());
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "Active", "true")));
    QTRY_VERIFY(QCoreApplication::instance()->findChild<MapViewLayerManager*>());
}

void TstSearchRegions::activeRegionsAreDrawn()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    QVERIFY(!plugin->isModified());
    QCOMPARE(m_shapes->all().at(0).kind, MAP_CREATE_RECT);
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "Active", "false")));
    QTRY_COMPARE(m_shapes->texts(), QStringList());
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "Active", "true")));
    QTRY_COMPARE(m_shapes->texts().size(), 1);
}

void TstSearchRegions::newSettingsHaveNone()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const subjob = plugin->readSubjob(JedTest::subjobOn("TRV9KScanSettings", "VUHF-1"), nullptr);
    ISubSetting* const node = plugin->createSubSetting("DirectionFinding", subjob);
    QVERIFY(node);
    QCOMPARE(field(node, "Active"), QString("false"));
    QCOMPARE(edges(node), QString("3 57 9 60"));
    QTest::qWait(20);
    QCOMPARE(m_shapes->texts(), QStringList());
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "Active", "true")));
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Watch 3,60 9,57"));
}

void TstSearchRegions::receiversWithoutARegionHaveNone()
{
    const LoadedPlugin plugin("search");
    // A receiver that is not in the installation: its settings are text only.
    JobXml::Subjob subjob = JedTest::exampleJob("surveillance").GetSubjob().at(1);
    subjob.GetResourceDescription().SetBaseResource("VUHF-99");
    ISubSetting* const node = bearing(plugin->readSubjob(subjob, nullptr));
    QVERIFY(node);
    QCOMPARE(field(node, "Active"), QString("true"));
    QTest::qWait(20);
    QCOMPARE(m_shapes->texts(), QStringList());
}

void TstSearchRegions::toolTipsTellTheNumbers()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    QCOMPARE(m_shapes->all().at(0).tooltip,
             QString::fromUtf8("Harbour channels\nWest 4.75°, south 57.75°, east 6.5°, north 58.75°"));
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "East", "7.125")));
    QTRY_COMPARE(m_shapes->named("Harbour channels").tooltip,
                 QString::fromUtf8("Harbour channels\nWest 4.75°, south 57.75°, east 7.125°, north 58.75°"));
}

void TstSearchRegions::numbersMoveTheShape()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    auto* const west = node->getWidget()->findChild<QDoubleSpinBox*>(SET + "/Region.West");
    QVERIFY(west);
    west->selectAll();
    QTest::keyClicks(west, "-1.5");
    QTest::keyClick(west, Qt::Key_Return);
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels -1.5,58.75 6.5,57.75"));
    QVERIFY(plugin->isModified());
}

void TstSearchRegions::cornersAreDrawnAsAPolygon()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    const QString rect = node->parameterSetText(SET);
    QString polygon = rect;
    polygon.replace("</North>",
                    "</North><Corner>4 57</Corner><Corner>6,5; 57</Corner><Corner>5 58.5</Corner>");
    QVERIFY(node->setParameterSetText(SET, polygon));
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4,57 6.5,57 5,58.5"));
    const MapShapes::Shape shape = m_shapes->named("Harbour channels");
    QCOMPARE(shape.kind, MAP_CREATE_POLYGON);
    QVERIFY2(shape.tooltip.contains("3 corners") && shape.tooltip.contains(QString::fromUtf8("north 58.5°")),
             qPrintable(shape.tooltip));
    QCOMPARE(node->problems().size(), 0);
    QVERIFY(node->setParameterSetText(SET, rect));
    QTRY_COMPARE(m_shapes->named("Harbour channels").kind, MAP_CREATE_RECT);
}

void TstSearchRegions::cornersThatAreNone_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("problem");
    QTest::newRow("two") << QStringList{"4 57", "5 57"} << "A polygon has at least three corners";
    QTest::newRow("no number") << QStringList{"4 57", "5 57", "5 58", "5 north"}
                               << "Corner 4 is no longitude and latitude: \"5 north\"";
    QTest::newRow("one number") << QStringList{"4 57", "5", "5 57", "5 58"}
                                << "Corner 2 is no longitude and latitude: \"5\"";
    QTest::newRow("beyond the pole") << QStringList{"4 57", "5 57", "5 58", "4 90.5"}
                                     << "Corner 4 is no longitude and latitude: \"4 90.5\"";
}

void TstSearchRegions::cornersThatAreNone()
{
    QFETCH(QStringList, texts);
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    QString xml = node->parameterSetText(SET);
    xml.replace("</North>", "</North><Corner>" + texts.join("</Corner><Corner>") + "</Corner>");
    QVERIFY(node->setParameterSetText(SET, xml));
    QCOMPARE(node->problems().size(), 1);
    QCOMPARE(node->problems().at(0).field, QString("Region.Corner"));
    QTEST(node->problems().at(0).text, "problem");
}

void TstSearchRegions::regionsThatEndBeforeTheyBegin()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "West", "6.5")));
    QCOMPARE(node->problems().size(), 1);
    QCOMPARE(node->problems().at(0).field, QString("Region.East"));
    QCOMPARE(node->problems().at(0).severity, Problem::SEVERITY_ERROR);
    QTRY_COMPARE(m_shapes->texts(), QStringList());
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "North", "57")));
    QCOMPARE(node->problems().size(), 2);
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "Active", "false")));
    QCOMPARE(node->problems().size(), 0);
}

void TstSearchRegions::shapeHasTheNameOfTheSubJob()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    QVERIFY(node->parent()->setDisplayName("Fjord"));
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Fjord 4.75,58.75 6.5,57.75"));
    QVERIFY(m_shapes->all().at(0).tooltip.startsWith("Fjord\n"));
}

void TstSearchRegions::shapeMovesTheNumbers_data()
{
    QTest::addColumn<QVector<QPointF>>("points"); // Left top, right bottom.
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<QString>("drawn");
    QTest::newRow("moved") << QVector<QPointF>{{5.75, 59.75}, {7.5, 58.75}} << "5.75 58.75 7.5 59.75"
                           << " 5.75,59.75 7.5,58.75";
    QTest::newRow("wider") << QVector<QPointF>{{4.75, 58.75}, {10, 57.75}} << "4.75 57.75 10 58.75"
                           << " 4.75,58.75 10,57.75";
    QTest::newRow("between two metres")
        << QVector<QPointF>{{1.0 / 3, 58.75}, {6.5, 57.75}} << "0.33333 57.75 6.5 58.75"
        << " 0.333333,58.75 6.5,57.75";
    // The map does not know where the earth ends; the setting does, and the shape follows it.
    QTest::newRow("beyond the pole") << QVector<QPointF>{{4.75, 95}, {6.5, 80}} << "4.75 80 6.5 90"
                                     << " 4.75,90 6.5,80";
}

void TstSearchRegions::shapeMovesTheNumbers()
{
    QFETCH(QVector<QPointF>, points);
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    QSignalSpy stateChanged(plugin.get(), &JEDSubSettingFactory::stateChanged);
    moveOnMap("Harbour channels", points);
    QTRY_VERIFY(!stateChanged.isEmpty());
    QTEST(edges(node), "numbers");
    QVERIFY(plugin->isModified());
    for (const QList<QVariant>& signal : stateChanged)
        QCOMPARE(signal.at(0).value<ISubSetting*>(), node);
    QFETCH(QString, drawn);
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels" + drawn));
}

void TstSearchRegions::movedShapeStaysWhereItIs()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    const int group = m_shapes->named("Harbour channels").group;
    moveOnMap("Harbour channels", {{0, 55}, {2, 54}});
    QTRY_COMPARE(edges(node), QString("0 54 2 55"));
    // Drawn again, it would not be selected any more; only the tool tip is new.
    QTRY_VERIFY(m_shapes->all().at(0).tooltip.contains("West 0"));
    QCOMPARE(m_shapes->named("Harbour channels").group, group);
}

void TstSearchRegions::movedPolygonMovesItsCorners()
{
    const LoadedPlugin plugin("dfscan");
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_DF_SCAN);
    ISubSetting* const subjob = plugin->readSubjob(JedTest::exampleJob("dfscan").GetSubjob().at(1), nullptr);
    QTRY_COMPARE(m_shapes->texts().size(), 1);
    QCOMPARE(m_shapes->all().at(0).kind, MAP_CREATE_POLYGON);
    ISubSetting* const node =
        subjob->child(0)->parameterSetNames().contains(SET) ? subjob->child(0) : subjob->child(1);
    QVERIFY(node->parameterSetNames().contains(SET));
    m_map->send(MAP_GROUP_MOVED, m_shapes->named("Ships").group, {{-2.5, 1}});
    QTRY_COMPARE(corners(node), QStringList({"0.5 59", "4 58", "6 58.75", "4.5 59.5", "3 60.5"}));
    QCOMPARE(edges(node), QString("0.5 58 6 60.5"));
}

void TstSearchRegions::moveIsOneStepOfUndo()
{
    const LoadedPlugin plugin("search");
    Session::JobSession session({plugin.get()});
    QVERIFY(session.open(JED_SOURCE_DIR "/installation/Jobs/surveillance.xml", nullptr));
    QTRY_COMPARE(m_shapes->texts().size(), 1);
    ISubSetting* const node = bearing(session.settingAt({1}));
    moveOnMap("Harbour channels", {{0, 55}, {2, 54}});
    QTRY_COMPARE(session.undoStack()->count(), 1);
    QCOMPARE(edges(node), QString("0 54 2 55"));
    session.undoStack()->undo();
    QCOMPARE(edges(node), QString("4.75 57.75 6.5 58.75"));
    QVERIFY(!session.isModified());
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4.75,58.75 6.5,57.75"));
    session.undoStack()->redo();
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 0,55 2,54"));
}

void TstSearchRegions::regionDeletedOnTheMapIsInactive()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    deleteOnMap("Harbour channels");
    QTRY_COMPARE(field(node, "Active"), QString("false"));
    QCOMPARE(edges(node), QString("4.75 57.75 6.5 58.75"));
    QVERIFY(plugin->isModified());
    QTest::qWait(20);
    QCOMPARE(m_shapes->texts(), QStringList());
}

void TstSearchRegions::deletionOnTheMapIsUndone()
{
    const LoadedPlugin plugin("search");
    Session::JobSession session({plugin.get()});
    QVERIFY(session.open(JED_SOURCE_DIR "/installation/Jobs/surveillance.xml", nullptr));
    QTRY_COMPARE(m_shapes->texts().size(), 1);
    ISubSetting* const node = bearing(session.settingAt({1}));
    deleteOnMap("Harbour channels");
    QTRY_COMPARE(session.undoStack()->count(), 1);
    QCOMPARE(field(node, "Active"), QString("false"));
    session.undoStack()->undo();
    QCOMPARE(field(node, "Active"), QString("true"));
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4.75,58.75 6.5,57.75"));
    session.undoStack()->redo();
    QTRY_COMPARE(m_shapes->texts(), QStringList());
}

void TstSearchRegions::deletedSettingsTakeTheirShapesAlong()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    QVERIFY(plugin->duplicateSubSetting(node->parent()));
    QTRY_COMPARE(m_shapes->texts(), QStringList({LAYER + ": Harbour channels 4.75,58.75 6.5,57.75",
                                                 LAYER + ": Harbour channels 2 4.75,58.75 6.5,57.75"}));
    QVERIFY(plugin->deleteSubSetting(node->parent()));
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 2 4.75,58.75 6.5,57.75"));
    plugin->clear();
    QTRY_COMPARE(m_shapes->texts(), QStringList());
}

void TstSearchRegions::userDrawsTheRegion()
{
    const LoadedPlugin plugin("search");
    Session::JobSession session({plugin.get()});
    QVERIFY(session.open(JED_SOURCE_DIR "/installation/Jobs/surveillance.xml", nullptr));
    QTRY_COMPARE(m_shapes->texts().size(), 1);
    ISubSetting* const node = bearing(session.settingAt({1}));
    QWidget* const widget = node->getWidget();
    widget->show();
    auto* const draw = widget->findChild<QPushButton*>("drawRegion");
    QTRY_VERIFY(draw->isEnabled());
    QTest::keyClick(draw, Qt::Key_Space);
    QTRY_COMPARE(m_shapes->all().size(), 2);
    int shape = 0;
    for (const MapShapes::Shape& drawn : m_shapes->all()) {
        if (drawn.kind == MAP_CREATE_EDITABLE)
            shape = drawn.shape;
    }
    QVERIFY(shape != 0);
    m_map->send(MAP_POLYGON_DRAWN, shape, {{5, 57}, {7.000001, 57}, {6, 58}});
    QTRY_COMPARE(corners(node), QStringList({"5 57", "7 57", "6 58"}));
    QCOMPARE(edges(node), QString("5 57 7 58"));
    // The rectangle makes way.
    QTRY_COMPARE(m_shapes->all().size(), 1);
    QCOMPARE(m_shapes->all().at(0).shape, shape);
    QTRY_VERIFY(m_shapes->all().at(0).tooltip.contains("3 corners"));
    QTRY_COMPARE(session.undoStack()->count(), 1);
    session.undoStack()->undo();
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4.75,58.75 6.5,57.75"));
}

void TstSearchRegions::oneRegionIsDrawnAtATime()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    ISubSetting* const other = bearing(plugin->duplicateSubSetting(node->parent()));
    QTRY_COMPARE(m_shapes->texts().size(), 2);
    for (ISubSetting* setting : {node, other}) {
        setting->getWidget()->show();
        auto* const draw = setting->getWidget()->findChild<QPushButton*>("drawRegion");
        QTRY_VERIFY(draw->isEnabled());
        draw->click();
    }
    const auto hasText = [](ISubSetting* setting, const QString& text) {
        const QList<QLabel*> labels = setting->getWidget()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel* label) { return label->text() == text; });
    };
    QVERIFY(hasText(node, "Set the corners of the region on the map."));
    QVERIFY(hasText(other, "Finish the polygon that is being drawn on the map first."));
    QTRY_COMPARE(m_shapes->all().size(), 3);
}

void TstSearchRegions::drawingIsGivenUp_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("on the map") << "map";
    QTest::newRow("setting deleted") << "setting";
    QTest::newRow("two corners") << "line";
    QTest::newRow("read-only meanwhile") << "read-only";
}

void TstSearchRegions::drawingIsGivenUp()
{
    QFETCH(QString, how);
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    node->getWidget()->show();
    auto* const draw = node->getWidget()->findChild<QPushButton*>("drawRegion");
    QTRY_VERIFY(draw->isEnabled());
    draw->click();
    QTRY_COMPARE(m_shapes->all().size(), 2);
    MapShapes::Shape drawing;
    for (const MapShapes::Shape& drawn : m_shapes->all()) {
        if (drawn.kind == MAP_CREATE_EDITABLE)
            drawing = drawn;
    }
    if (how == "map") {
        m_map->send(MAP_GROUP_DELETED, drawing.group);
        m_shapes->drop(drawing.group);
        // Another one can be drawn.
        QTRY_VERIFY((draw->click(), m_shapes->all().size() == 2));
        return;
    }
    if (how == "setting") {
        QVERIFY(plugin->deleteSubSetting(node));
        QTRY_COMPARE(m_shapes->all().size(), 0);
        return;
    }
    if (how == "read-only")
        plugin->setReadOnly(true);
    const QVector<QPointF> points{{5, 57}, {7, 57}, {6, 58}};
    m_map->send(MAP_POLYGON_DRAWN, drawing.shape, points.mid(0, how == "line" ? 2 : 3));
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4.75,58.75 6.5,57.75"));
    QCOMPARE(corners(node), QStringList());
    plugin->setReadOnly(false);
}

void TstSearchRegions::readOnlyRegionsStay()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    plugin->setReadOnly(true);
    const QString before = node->parameterSetText(SET);
    const int group = m_shapes->named("Harbour channels").group;
    moveOnMap("Harbour channels", {{0, 55}, {2, 54}});
    QTRY_VERIFY(m_shapes->named("Harbour channels").group != group);
    QCOMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4.75,58.75 6.5,57.75"));
    deleteOnMap("Harbour channels");
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4.75,58.75 6.5,57.75"));
    QCOMPARE(node->parameterSetText(SET), before);
    QVERIFY(!plugin->isModified());
    plugin->setReadOnly(false);
}

void TstSearchRegions::regionIsSelectedWithItsEditor()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    QVERIFY(m_shapes->selected() != m_shapes->named("Harbour channels").group);
    node->getWidget()->show();
    QTRY_COMPARE(m_shapes->selected(), m_shapes->named("Harbour channels").group);
}

void TstSearchRegions::shapesAreBackAfterTheMap()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    node->getWidget()->show();
    auto* const draw = node->getWidget()->findChild<QPushButton*>("drawRegion");
    QTRY_VERIFY(draw->isEnabled());
    m_map->stop();
    QTRY_VERIFY(!draw->isEnabled());
    QCOMPARE(draw->toolTip(), QString("No map is open."));
    m_shapes->clear();
    QVERIFY(m_map->start());
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Harbour channels 4.75,58.75 6.5,57.75"));
    QTRY_VERIFY(draw->isEnabled());
    moveOnMap("Harbour channels", {{0, 55}, {2, 54}});
    QTRY_COMPARE(edges(node), QString("0 54 2 55"));
}

void TstSearchRegions::editsWithoutAMapAreShownLater()
{
    const LoadedPlugin plugin("search");
    ISubSetting* const node = harbour(plugin);
    m_map->stop();
    QVERIFY(node->setParameterSetText(SET, changed(node->parameterSetText(SET), "East", "8")));
    ISubSetting* const copy = plugin->duplicateSubSetting(node->parent());
    QTest::qWait(20);
    QVERIFY(plugin->deleteSubSetting(node->parent()));
    QVERIFY(copy->setDisplayName("Copy"));
    m_shapes->clear();
    QVERIFY(m_map->start());
    QTRY_COMPARE(m_shapes->texts(), QStringList(LAYER + ": Copy 4.75,58.75 8,57.75"));
}

void TstSearchRegions::pluginsKeepTheirShapesApart()
{
    const LoadedPlugin search("search");
    const LoadedPlugin dfscan("dfscan");
    ISubSetting* const node = harbour(search);
    dfscan->slot_setCurrentJobType(JEDVE::JOB_TYPE_DF_SCAN);
    QVERIFY(dfscan->readSubjob(JedTest::exampleJob("dfscan").GetSubjob().at(0), nullptr));
    QTRY_COMPARE(m_shapes->texts().size(), 2);
    QCOMPARE(m_shapes->texts().filter("DFScan / ").size(), 1);
    moveOnMap("Harbour channels", {{0, 55}, {2, 54}});
    QTRY_COMPARE(edges(node), QString("0 54 2 55"));
    QVERIFY(search->isModified() && !dfscan->isModified());
    deleteOnMap("Beacons");
    QTRY_VERIFY(dfscan->isModified());
    QCOMPARE(field(node, "Active"), QString("true"));
    search->clear();
    QTRY_COMPARE(m_shapes->texts(), QStringList());
}

void TstSearchRegions::unloadedPluginTakesItsShapesAlong()
{
    {
        const LoadedPlugin plugin("search");
        harbour(plugin);
    }
    QTRY_COMPARE(m_shapes->texts(), QStringList());
}

JED_TEST_MAIN(TstSearchRegions)
#include "tst_searchregions.moc"
