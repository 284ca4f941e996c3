#include "subjobwidget.h"

#include "checkedheaderview.h"
#include "filterintegerrangeproxymodel.h"
#include "selectableresourceitemdelegate.h"

#include <support/subjobwidgetfixture.h>
#include <support/testmain.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QMetaMethod>
#include <QStandardItemModel>

using JedTest::ALL_MODES;
using JedTest::DETECTOR_LOCATION_TEXTS;
using JedTest::entries;
using JedTest::RECORD_LOCATION_TEXTS;
using JedTest::SubJobFields;
using JedTest::SubJobSignals;
using JedTest::tuner;
using JEDVEPLUGIN::SubJobWidget;

class TstSubJobWidget : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void classIsKnownToQt();
    void methodsAreTheseInThisOrder();
    void optionsHaveTheirValues();
    void row_data();
    void row();
    void nothingElseIsInTheGrid();
    void settingsOfTheFields();
    void freshWidget();
    void layoutOfTheColumns();
    void scpTable();
    void switchesAreVisibleOnRequest_data();
    void switchesAreVisibleOnRequest();
    void parentIsTaken();

    void emptyDescriptionChangesNothing();
    void descriptionIsShown();
    void recordLocationsOfADescription_data();
    void recordLocationsOfADescription();
    void startupModesOfADescription_data();
    void startupModesOfADescription();
    void detectorTypesOfADescription_data();
    void detectorTypesOfADescription();
    void detectorRecordLocationsOfADescription();
    void baseResourcesOfADescription_data();
    void baseResourcesOfADescription();
    void anotherDescriptionReplacesTheFirst();
    void descriptionEmitsNothing();
    void descriptionLeavesTheWidgetBlocked();
    void descriptionLeavesTheDetectorAlone();

private:
    SubJobFields fields() const { return SubJobFields(*m_widget); }

    std::unique_ptr<SubJobWidget> m_widget;
    std::unique_ptr<SubJobSignals> m_signals;
};

void TstSubJobWidget::init()
{
    m_widget = std::make_unique<SubJobWidget>(true, true, nullptr);
    m_signals = std::make_unique<SubJobSignals>(m_widget.get());
}

void TstSubJobWidget::cleanup()
{
    m_signals.reset();
    m_widget.reset();
}

void TstSubJobWidget::classIsKnownToQt()
{
    const QMetaObject& meta = SubJobWidget::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::SubJobWidget");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
}

void TstSubJobWidget::methodsAreTheseInThisOrder()
{
    const QMetaObject& meta = SubJobWidget::staticMetaObject;
    QStringList told;
    QStringList slotNames;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        const QString signature = QString::fromLatin1(method.methodSignature());
        if (method.methodType() == QMetaMethod::Signal) {
            told << signature;
        } else {
            slotNames << signature;
            QCOMPARE(method.methodType(), QMetaMethod::Slot);
            QCOMPARE(method.access(), QMetaMethod::Private);
        }
        QCOMPARE(method.returnType(), int(QMetaType::Void));
    }
    QCOMPARE(told,
             QStringList({"startUpModeChanged(QString)", "productionChanged(bool)", "dscChannelChanged(int)",
                          "detectorChanged(bool)", "detectorTypeChanged(QString)",
                          "recordLocationChanged(QString)", "detectorRecordLocationChanged(QString)",
                          "detectorBaseResourceChanged(QString)", "preClassifierChanged(bool)",
                          "autoSeparationChanged(bool)", "filterSeparationChanged(bool)",
                          "onlineRecombinationChanged(bool)", "minCoverageChanged(uint)",
                          "autoRecordingChanged(bool)"}));
    QVERIFY(meta.indexOfSignal("minCoverageChanged(quint32)") >= 0);
    QCOMPARE(
        slotNames,
        QStringList({"slotProductionChanged(int)", "slotDSCChannelChanged(int)", "slotDetectorChanged(int)",
                     "slotDetectorTypeChanged(QString)", "slotRecordLocationChanged(QString)",
                     "slotDetectorRecordLocationChanged(QString)", "slotDetectorBaseResourceChanged(QString)",
                     "slotSCPViewContextMenu(QPoint)", "slotValidateDetectorBaseResource()",
                     "slotStartUpModeChanged(QString)", "slotAutoSeparationChanged(int)",
                     "slotFilterSeparationChanged(int)", "slotOnlineRecombinationChanged(int)",
                     "slotMinCoverageChanged(int)", "slotAutoRecordingChanged(int)"}));
}

void TstSubJobWidget::optionsHaveTheirValues()
{
    QCOMPARE(int(SubJobWidget::DetectorProduction), 1);
    QCOMPARE(int(SubJobWidget::DetectorChannels), 2);
    QCOMPARE(int(SubJobWidget::DetectorScpList), 4);
    QCOMPARE(int(SubJobWidget::DetectorSeparation), 8);
    QCOMPARE(int(SubJobWidget::DetectorMinCoverage), 16);
    QCOMPARE(int(SubJobWidget::DetectorAutoRecording), 32);
    QCOMPARE(int(SubJobWidget::DetectorBaseResourceForChannels), 64);
}

void TstSubJobWidget::row_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("labelName");
    QTest::addColumn<QString>("fieldName");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("toolTip");
    const QStringList rows = {
        "Tuner Name|subJobWidget_NameLabel|subJobWidget_Name|QLineEdit|",
        "Record Location|subJobWidget_RecordLocationLabel|subJobWidget_RecordLocation|QComboBox|"
        "select Record Location",
        "Type|subJobWidget_TypeLabel|subJobWidget_Type|QLineEdit|",
        "Base Resource|subJobWidget_BaseResourceLabel|subJobWidget_BaseResource|QLineEdit|",
        "Startup Mode|subJobWidget_StartupModeLabel|subJobWidget_StartupModes|QComboBox|Startup Mode",
        "Preclassifier|subJobWidget_PreClassifierLabel|subJobWidget_PreClassifier|QCheckBox|"
        "enable Preclassifier",
        "",
        "Detector|subjobWidget_DetectorLabel|subjobWidget_Detector|QCheckBox|enable/disable Detector",
        "Detector Type|subjobWidget_DetectorTypeLabel|subjobWidget_DetectorType|QComboBox|"
        "select Detector Type",
        "Production|subjobWidget_ProductionLabel|subjobWidget_Production|QCheckBox|"
        "enable/disable Production",
        "Auto Separation|subjobWidget_AutoSeparationLabel|subjobWidget_AutoSeparation|QCheckBox|"
        "enable/disable Auto Separation",
        "Filter Separation|subjobWidget_FilterSeparationLabel|subjobWidget_FilterSeparation|QCheckBox|"
        "enable/disable Filter Separation",
        "Online Recombination|subjobWidget_OnlineRecombinationLabel|subjobWidget_OnlineRecombination|"
        "QCheckBox|enable/disable Online Recombination",
        "Record Location|subJobWidget_DetectorRecordLocationLabel|subJobWidget_DetectorRecordLocation|"
        "QComboBox|select Record Location",
        "DSC Channels|subjobWidget_DSCChannelsLabel|subjobWidget_DSCChannels|QSpinBox|"
        "set number of DSC Channels",
        "Base Resource|subJobWidget_DetectorBaseResourceLabel|subJobWidget_DetectorBaseResource|QComboBox|"
        "select Base Resource",
        "Min Coverage|subjobWidget_MinCoverage|subjobWidget_MinCoverage|QSpinBox|",
        "Auto Recording|subjobWidget_AutoRecordingLabel|subjobWidget_AutoRecording|QCheckBox|"
        "enable/disable Auto Recording",
    };
    for (int row = 0; row < rows.size(); ++row) {
        const QStringList cells = rows[row].split('|');
        if (cells.size() == 5)
            QTest::newRow(qPrintable(QString::number(row)))
                << cells[0] << cells[1] << cells[2] << cells[3] << cells[4];
    }
}

void TstSubJobWidget::row()
{
    QFETCH(QString, label);
    QFETCH(QString, labelName);
    QFETCH(QString, fieldName);
    QFETCH(QString, kind);
    QFETCH(QString, toolTip);
    const int row = QByteArray(QTest::currentDataTag()).toInt();
    const auto* grid = m_widget->findChild<QGridLayout*>("subJobWidget_gridLayout");
    QVERIFY(grid);
    QVERIFY(grid->itemAtPosition(row, 0) && grid->itemAtPosition(row, 1));
    const auto* labelFound = qobject_cast<QLabel*>(grid->itemAtPosition(row, 0)->widget());
    QVERIFY(labelFound);
    QCOMPARE(labelFound->text(), label);
    QCOMPARE(labelFound->objectName(), labelName);
    const QWidget* field = grid->itemAtPosition(row, 1)->widget();
    QCOMPARE(field->metaObject()->className(), qPrintable(kind));
    QCOMPARE(field->objectName(), fieldName);
    QCOMPARE(field->toolTip(), toolTip);
    QCOMPARE(field->accessibleName(), label);
    QCOMPARE(labelFound->buddy(), field);
    QCOMPARE(field->isEnabled(), kind != "QLineEdit");
}

void TstSubJobWidget::nothingElseIsInTheGrid()
{
    const auto* grid = m_widget->findChild<QGridLayout*>("subJobWidget_gridLayout");
    QCOMPARE(grid->count(), 17 * 2 + 1);
    auto* group = qobject_cast<QGroupBox*>(grid->itemAtPosition(6, 0)->widget());
    QVERIFY(group);
    QCOMPARE(group->title(), QString("Detector"));
    QCOMPARE(grid->itemAtPosition(6, 1), grid->itemAtPosition(6, 0));
    for (int row = 0; row < 18; ++row)
        QCOMPARE(grid->rowStretch(row), 0);
    QCOMPARE(grid->rowStretch(18), 1);
}

void TstSubJobWidget::settingsOfTheFields()
{
    QCOMPARE(fields().channels()->minimum(), 0);
    QCOMPARE(fields().channels()->maximum(), 128);
    QCOMPARE(fields().channels()->suffix(), QString());
    QCOMPARE(fields().minCoverage()->minimum(), 0);
    QCOMPARE(fields().minCoverage()->maximum(), 100);
    QCOMPARE(fields().minCoverage()->suffix(), QString("%"));
}

void TstSubJobWidget::freshWidget()
{
    for (const char* name : {"subJobWidget_Name", "subJobWidget_Type", "subJobWidget_BaseResource"})
        QCOMPARE(fields().line(name)->text(), QString());
    for (const QComboBox* box : m_widget->findChildren<QComboBox*>())
        QCOMPARE(box->count(), 0);
    for (const QCheckBox* box : m_widget->findChildren<QCheckBox*>())
        QVERIFY(!box->isChecked());
    QCOMPARE(m_widget->getDSCChannels(), 0);
    QCOMPARE(m_widget->getMinCoverage(), 0u);
    QCOMPARE(JedTest::visibleDetectorFields(*m_widget), QString());
    QVERIFY(!m_widget->getSCPModel());
    const QStringList names = {m_widget->getStartupMode(), m_widget->getRecordLocation(),
                               m_widget->getDetectorRecordLocation(), m_widget->getDetectorType(),
                               m_widget->getDetectorBaseResource()};
    QCOMPARE(names, QStringList({"", "", "", "", ""}));
}

void TstSubJobWidget::layoutOfTheColumns()
{
    auto* columns = qobject_cast<QHBoxLayout*>(m_widget->layout());
    QVERIFY(columns);
    QCOMPARE(columns->count(), 3);

    auto* left = qobject_cast<QVBoxLayout*>(columns->itemAt(0)->layout());
    QVERIFY(left);
    QCOMPARE(left->objectName(), QString("DeviceSetting_WLayout"));
    QCOMPARE(left->count(), 2);
    QCOMPARE(left->itemAt(0)->layout()->objectName(), QString("subJobWidget_gridLayout"));
    QVERIFY(left->itemAt(1)->spacerItem());
    QCOMPARE(left->stretch(1), 1);

    QVERIFY(columns->itemAt(1)->spacerItem());
    QCOMPARE(columns->itemAt(1)->sizeHint().width(), 10);

    auto* right = qobject_cast<QVBoxLayout*>(columns->itemAt(2)->layout());
    QVERIFY(right);
    QCOMPARE(columns->stretch(2), 1);
    QCOMPARE(right->count(), 2);
    const auto* label = qobject_cast<QLabel*>(right->itemAt(0)->widget());
    QVERIFY(label);
    QCOMPARE(label->text(), QString("Autonomous SCPs"));
    QCOMPARE(label->objectName(), QString("subjobWidget_SCPListLabel"));
    QCOMPARE(right->itemAt(1)->widget(), fields().scps());
    QCOMPARE(label->buddy(), fields().scps());
}

void TstSubJobWidget::scpTable()
{
    const QTableView* table = fields().scps();
    QVERIFY(table);
    QCOMPARE(table->toolTip(), QString("select autonomous SCPs"));
    QVERIFY(table->isSortingEnabled());
    QCOMPARE(table->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(!table->isCornerButtonEnabled());
    QVERIFY(!table->accessibleName().isEmpty());

    const auto* header = qobject_cast<JEDVEPLUGIN::CheckedHeaderView*>(table->verticalHeader());
    QVERIFY(header);
    QCOMPARE(header->objectName(), QString("subjobWidget_DetectorSCPListVHeader"));
    QCOMPARE(header->orientation(), Qt::Vertical);
    QStandardItemModel one(1, 3);
    m_widget->setSCPModel(&one);
    QCOMPARE(header->sectionResizeMode(0), QHeaderView::ResizeToContents);
    QVERIFY(qobject_cast<JEDVEPLUGIN::SelectableResourceItemDelegate*>(table->itemDelegate()));

    const auto* proxy = qobject_cast<JEDVEPLUGIN::FilterIntegerRangeProxyModel*>(table->model());
    QVERIFY(proxy);
    QCOMPARE(proxy->filterKeyColumn(), 2);
    QVERIFY(proxy->dynamicSortFilter());
    QVERIFY(!proxy->isRangeFilterEnabled());
    QCOMPARE(proxy->sortColumn(), -1);
}

void TstSubJobWidget::switchesAreVisibleOnRequest_data()
{
    QTest::addColumn<bool>("detector");
    QTest::addColumn<bool>("preClassifier");
    QTest::newRow("none") << false << false;
    QTest::newRow("detector") << true << false;
    QTest::newRow("pre-classifier") << false << true;
    QTest::newRow("both") << true << true;
}

void TstSubJobWidget::switchesAreVisibleOnRequest()
{
    QFETCH(bool, detector);
    QFETCH(bool, preClassifier);
    SubJobWidget widget(detector, preClassifier, nullptr);
    const SubJobFields fields(widget);
    for (const bool on : {false, true, false}) {
        widget.setDetector(on, SubJobWidget::DetectorProduction);
        QCOMPARE(fields.detector()->isHidden(), !detector);
        QCOMPARE(fields.label("subjobWidget_DetectorLabel")->isHidden(), !detector);
        QCOMPARE(fields.preClassifier()->isHidden(), !preClassifier);
        QCOMPARE(fields.label("subJobWidget_PreClassifierLabel")->isHidden(), !preClassifier);
    }
    widget.show();
    for (const char* name : {"subJobWidget_Name", "subJobWidget_Type", "subJobWidget_BaseResource"})
        QVERIFY(fields.line(name)->isVisible());
    QVERIFY(fields.recordLocation()->isVisible());
    QVERIFY(fields.startupModes()->isVisible());
    QCOMPARE(fields.detector()->isVisible(), detector);
    QCOMPARE(fields.preClassifier()->isVisible(), preClassifier);
    QVERIFY(!fields.detectorType()->isVisible());
}

void TstSubJobWidget::parentIsTaken()
{
    QWidget parent;
    auto* widget = new SubJobWidget(true, true, &parent);
    QCOMPARE(widget->parentWidget(), &parent);
    QVERIFY(!m_widget->parentWidget());
}

void TstSubJobWidget::emptyDescriptionChangesNothing()
{
    m_widget->setResourceDescription(tuner("HT720", "A", ALL_MODES, {"C1", "C2"}), {});
    m_widget->setStartupMode("Timed");
    m_signals->take();
    m_widget->setResourceDescription(nullptr, {"Manual"});
    QCOMPARE(fields().line("subJobWidget_Name")->text(), QString("Tuner of A"));
    QCOMPARE(fields().startupModes()->count(), 5);
    QCOMPARE(m_widget->getStartupMode(), QString("Timed"));
    QCOMPARE(m_signals->take(), QString());
}

void TstSubJobWidget::descriptionIsShown()
{
    m_widget->setResourceDescription(tuner("HT720", "VUHF"), {});
    QCOMPARE(fields().line("subJobWidget_Name")->text(), QString("Tuner of VUHF"));
    QCOMPARE(fields().line("subJobWidget_BaseResource")->text(), QString("VUHF"));
    QCOMPARE(fields().line("subJobWidget_Type")->text(), QString("HT720"));
}

void TstSubJobWidget::recordLocationsOfADescription_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("HT720") << RECORD_LOCATION_TEXTS << "Receiver";
    QTest::newRow("TRV9KScanSettings") << RECORD_LOCATION_TEXTS << "Station";
    QTest::newRow("DirectionFinder") << RECORD_LOCATION_TEXTS << "Station";
    QTest::newRow("MeasurementReceiver") << QStringList() << "";
    QTest::newRow("SignalRecorder") << QStringList() << "";
    QTest::newRow("unknown") << QStringList() << "";
}

void TstSubJobWidget::recordLocationsOfADescription()
{
    QFETCH(QStringList, texts);
    QFETCH(QString, chosen);
    m_widget->setResourceDescription(tuner(QTest::currentDataTag(), "A"), {});
    QCOMPARE(entries(fields().recordLocation()), texts);
    QCOMPARE(fields().recordLocation()->isEnabled(), !texts.isEmpty());
    QCOMPARE(m_widget->getRecordLocation(), chosen);
}

void TstSubJobWidget::startupModesOfADescription_data()
{
    QTest::addColumn<QStringList>("modes");
    QTest::addColumn<QStringList>("allowed");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("all of three") << QStringList({"Timed", "Manual", "Permanent"}) << QStringList()
                                  << QStringList({"Starts at the set time", "Started by the operator",
                                                  "Runs permanently"});
    QTest::newRow("two are allowed") << ALL_MODES << QStringList({"Timed", "Manual"})
                                     << QStringList({"Started by the operator", "Starts at the set time"});
    QTest::newRow("one is left") << ALL_MODES << QStringList({"OnRequest"})
                                 << QStringList({"Starts on request of another job"});
    QTest::newRow("none is left") << QStringList({"Manual"}) << QStringList({"OnRequest"}) << QStringList();
    QTest::newRow("none") << QStringList() << QStringList() << QStringList();
}

void TstSubJobWidget::startupModesOfADescription()
{
    QFETCH(QStringList, modes);
    QFETCH(QStringList, allowed);
    QFETCH(QStringList, texts);
    m_widget->setResourceDescription(tuner("HT720", "A", modes), allowed);
    const QComboBox* box = fields().startupModes();
    QCOMPARE(entries(box), texts);
    QCOMPARE(box->currentIndex(), texts.isEmpty() ? -1 : 0);
    QCOMPARE(box->isEnabled(), texts.size() > 1);
}

void TstSubJobWidget::detectorTypesOfADescription_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("HT720") << QStringList({"Signal detector", "Hopper detector"});
    QTest::newRow("TRV9KScanSettings") << QStringList({"Signal detector"});
    QTest::newRow("DirectionFinder") << QStringList();
    QTest::newRow("unknown") << QStringList();
}

void TstSubJobWidget::detectorTypesOfADescription()
{
    QFETCH(QStringList, texts);
    m_widget->setResourceDescription(tuner(QTest::currentDataTag(), "A"), {});
    QCOMPARE(entries(fields().detectorType()), texts);
    QCOMPARE(fields().detectorType()->isEnabled(), texts.size() > 1);
    QCOMPARE(fields().detectorType()->currentIndex(), texts.isEmpty() ? -1 : 0);
}

void TstSubJobWidget::detectorRecordLocationsOfADescription()
{
    for (const char* type : {"HT720", "SignalRecorder", "unknown"}) {
        m_widget->setResourceDescription(tuner(type, "A"), {});
        QCOMPARE(entries(fields().detectorRecordLocation()), DETECTOR_LOCATION_TEXTS);
        QCOMPARE(fields().detectorRecordLocation()->currentText(), QString("Server of the station"));
    }
}

void TstSubJobWidget::baseResourcesOfADescription_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("none") << QStringList();
    QTest::newRow("one") << QStringList({"C1"});
    QTest::newRow("two") << QStringList({"C2", "C1"});
}

void TstSubJobWidget::baseResourcesOfADescription()
{
    QFETCH(QStringList, names);
    m_widget->setResourceDescription(tuner("HT720", "A", {}, names), {});
    QCOMPARE(entries(fields().detectorBaseResource()), names);
    QCOMPARE(fields().detectorBaseResource()->isEnabled(), names.size() > 1);
}

void TstSubJobWidget::anotherDescriptionReplacesTheFirst()
{
    m_widget->setResourceDescription(tuner("HT720", "A", ALL_MODES, {"C1", "C2"}), {});
    m_widget->setDetectorRecordLocation("Center");
    m_widget->setResourceDescription(tuner("SignalRecorder", "B"), {});
    QCOMPARE(fields().line("subJobWidget_Name")->text(), QString("Tuner of B"));
    for (const QComboBox* box : {fields().recordLocation(), fields().startupModes(), fields().detectorType(),
                                 fields().detectorBaseResource()}) {
        QCOMPARE(box->count(), 0);
        QVERIFY(!box->isEnabled());
    }
    QCOMPARE(entries(fields().detectorRecordLocation()), DETECTOR_LOCATION_TEXTS);

    m_widget->setResourceDescription(tuner("HT720", "A", ALL_MODES, {"C1", "C2"}), {});
    for (const QComboBox* box : {fields().recordLocation(), fields().startupModes(), fields().detectorType(),
                                 fields().detectorBaseResource()})
        QVERIFY(box->isEnabled());
    QCOMPARE(fields().startupModes()->count(), 5);
}

void TstSubJobWidget::descriptionEmitsNothing()
{
    m_widget->setResourceDescription(tuner("HT720", "A", ALL_MODES, {"C1", "C2"}), {});
    QCOMPARE(m_signals->take(), QString());
    QVERIFY(!m_widget->signalsBlocked());
    m_widget->setStartupMode("Timed");
    QCOMPARE(m_signals->take(), QString("startUpMode(Timed)"));
}

void TstSubJobWidget::descriptionLeavesTheWidgetBlocked()
{
    m_widget->blockAllSignals(true);
    m_widget->setResourceDescription(tuner("HT720", "A", ALL_MODES, {"C1", "C2"}), {});
    QVERIFY(m_widget->signalsBlocked());
    m_widget->setStartupMode("Timed");
    QCOMPARE(m_signals->take(), QString());
}

void TstSubJobWidget::descriptionLeavesTheDetectorAlone()
{
    m_widget->setDetector(true, SubJobWidget::DetectorProduction | SubJobWidget::DetectorChannels);
    m_widget->setProduction(true);
    m_widget->setDSCChannels(5);
    m_widget->setResourceDescription(tuner("TRV9KScanSettings", "A"), {});
    QCOMPARE(JedTest::visibleDetectorFields(*m_widget), QString("type production location channels"));
    QVERIFY(m_widget->isDetectorSet());
    QVERIFY(m_widget->isProductionSet());
    QCOMPARE(m_widget->getDSCChannels(), 5);
}

JED_TEST_MAIN(TstSubJobWidget)
#include "tst_subjobwidget.moc"
