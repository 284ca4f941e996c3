#include <support/resourcedialogfixture.h>
#include <support/shoutingtranslator.h>
#include <support/testmain.h>

#include <QGridLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>

using JedTest::DescriptionPtr;
using JedTest::receiver;
using JEDVEPLUGIN::ResourceSelectionDialog;

namespace {

// Texts of the user interface in the job file.
const QString NOT_RECORDED = "Not recorded";
const QString STATION = "Server of the station";
const QString ALL_LOCATIONS = "Not recorded, At the receiver, Server of the station, Monitoring centre";

} // namespace

class TstResourceSelectionDialog : public QObject, private JedTest::ResourceDialogFixture
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void namesAreThoseOfTheInterface();
    void windowIsModal();
    void rowsOfTheGrid_data();
    void rowsOfTheGrid();
    void rowsThatAreOffered_data();
    void rowsThatAreOffered();
    void fieldsBeginAsTheyShall();
    void preClassifierBeginsUnchecked();
    void labelsAreBuddiesAndFieldsHaveAccessibleNames();
    void tabGoesFromRowToRow();
    void textsAreTranslated();
    void typesAreSorted();
    void laterDescriptionReplacesAnEarlierOne();
    void nothingToChooseFrom();
    void typeFillsBaseResources();
    void unknownBaseResourceSelectsNothing();
    void baseResourcesAnnounceNothingWhileTheyAreFilled();
    void recordLocations_data();
    void recordLocations();
    void startupModes_data();
    void startupModes();
    void chosenStartupModeIsTaken();
    void otherBaseResourceBeginsWithItsFirstMode();
};

void TstResourceSelectionDialog::namesAreThoseOfTheInterface()
{
    const QMetaObject& meta = ResourceSelectionDialog::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::ResourceSelectionDialog");
    QCOMPARE(meta.superClass()->className(), "QDialog");
    QStringList slotNames;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        QCOMPARE(meta.method(index).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(index).access(), QMetaMethod::Private);
        slotNames << meta.method(index).methodSignature();
    }
    QCOMPARE(slotNames,
             QStringList({"tunerTypeChanged(QString)", "baseResourceChanged(QString)",
                          "startupModeChanged(QString)", "dialogFinished(int)", "detectorStateChanged(int)",
                          "detectorTypeChanged(QString)", "productionStateChanged(int)",
                          "dscChannelChanged(int)", "onlineSeparationChanged(int)"}));
}

void TstResourceSelectionDialog::windowIsModal()
{
    QWidget window;
    ResourceSelectionDialog dialog({receiver("HT720", "A")}, true, true, true, {}, &window);
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.objectName(), QString("ResourceSelectionDialog"));
    QCOMPARE(dialog.parentWidget(), &window);
    QVERIFY(!dialog.windowTitle().isEmpty());
    QCOMPARE(dialog.layout()->objectName(), QString("ResourceSelection_Layout"));
    QVERIFY(qobject_cast<QVBoxLayout*>(dialog.layout()));
    QVERIFY(dialog.findChild<QGridLayout*>("ResourceSelection_GridLayout"));
}

void TstResourceSelectionDialog::rowsOfTheGrid_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("labelName");
    QTest::addColumn<QString>("fieldName");
    QTest::addColumn<QString>("fieldClass");

    const char* const rows[][4] = {
        {"Type", "TunerTypeLabel", "TunerType", "QComboBox"},
        {"Base Resource", "BaseResourceLabel", "BaseResource", "QComboBox"},
        {"Tuner Name", "TunerNameLabel", "TunerName", "QLineEdit"},
        {"Record Location", "RecordLocationLabel", "RecordLocation", "QComboBox"},
        {"Startup Modes", "StartupModesLabel", "StartupModes", "QListWidget"},
        {"Preclassifier", "PreClassifierLabel", "PreClassifier", "QCheckBox"},
        {"Detector", "DetectorLabel", "Detector", "QCheckBox"},
        {"Detector Type", "DetectorTypeLabel", "DetectorType", "QComboBox"},
        {"Production", "ProductionLabel", "Production", "QCheckBox"},
        {"Auto Separation", "AutoSeparation", "AutoSeparation", "QCheckBox"},
        {"Filter Separation", "FilterSeparation", "FilterSeparation", "QCheckBox"},
        {"Online Recombination", "OnlineRecombination", "OnlineRecombination", "QCheckBox"},
        {"Record Location", "DetectorRecordLocationLabel", "DetectorRecordLocation", "QComboBox"},
        {"DSC Channels", "DSCChannelsLabel", "DSCChannels", "QSpinBox"},
        {"Base Resource", "DetectorBaseResourceLabel", "DetectorBaseResource", "QComboBox"},
        {"Min Coverage", "MinCoverage", "MinCoverage", "QSpinBox"},
        {"Auto Recording", "AutoRecording", "AutoRecording", "QCheckBox"},
    };
    int number = 0;
    for (const auto& row : rows) {
        QTest::newRow(row[2]) << number << row[0] << row[1] << row[2] << row[3];
        ++number;
    }
}

void TstResourceSelectionDialog::rowsOfTheGrid()
{
    QFETCH(int, row);
    QFETCH(QString, text);
    QFETCH(QString, labelName);
    QFETCH(QString, fieldName);
    QFETCH(QString, fieldClass);

    open({receiver("HT720", "A")}, {true, false, true, {}});
    const auto* grid = m_dialog->findChild<QGridLayout*>("ResourceSelection_GridLayout");
    const auto* label = qobject_cast<QLabel*>(grid->itemAtPosition(row, 0)->widget());
    QVERIFY(label);
    QCOMPARE(label->text(), text);
    QCOMPARE(label->objectName(), "ResourceSelection_" + labelName);
    const QWidget* field = grid->itemAtPosition(row, 1)->widget();
    QCOMPARE(field->objectName(), "ResourceSelection_" + fieldName);
    QCOMPARE(field->metaObject()->className(), fieldClass.toLatin1().constData());
}

void TstResourceSelectionDialog::rowsThatAreOffered_data()
{
    QTest::addColumn<bool>("detector");
    QTest::addColumn<bool>("preClassifier");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("detectorRow");
    QTest::newRow("neither") << false << false << 5 << -1;
    QTest::newRow("pre-classifier") << false << true << 6 << -1;
    QTest::newRow("detector") << true << false << 16 << 5;
    QTest::newRow("both") << true << true << 17 << 6;
}

void TstResourceSelectionDialog::rowsThatAreOffered()
{
    QFETCH(bool, detector);
    QFETCH(bool, preClassifier);
    QFETCH(int, rows);
    QFETCH(int, detectorRow);

    open({receiver("HT720", "A")}, {detector, false, preClassifier, {}});
    const auto* grid = m_dialog->findChild<QGridLayout*>("ResourceSelection_GridLayout");
    QCOMPARE(grid->count(), 2 * rows);
    QCOMPARE(grid->columnCount(), 2);
    QCOMPARE(check("PreClassifier") != nullptr, preClassifier);
    QCOMPARE(m_dialog->findChildren<QCheckBox*>().size(), (preClassifier ? 1 : 0) + (detector ? 6 : 0));
    QCOMPARE(m_dialog->findChildren<QSpinBox*>().size(), detector ? 2 : 0);
    QCOMPARE(m_dialog->findChildren<QComboBox*>().size(), detector ? 6 : 3);
    if (detector) {
        QCOMPARE(grid->itemAtPosition(detectorRow, 1)->widget(), check("Detector"));
        QCOMPARE(grid->itemAtPosition(detectorRow + 10, 1)->widget(), check("AutoRecording"));
    }
}

void TstResourceSelectionDialog::fieldsBeginAsTheyShall()
{
    open({receiver("HT720", "A", "Timed")}, {true, false, true, {}});
    QVERIFY(!find<QLineEdit>("TunerName")->isEnabled());
    QCOMPARE(find<QLineEdit>("TunerName")->text(), QString("Name of A"));
    QVERIFY(modes()->sizePolicy() != QListWidget().sizePolicy());
    QCOMPARE(spin("DSCChannels")->minimum(), 0);
    QCOMPARE(spin("DSCChannels")->maximum(), 128);
    QCOMPARE(spin("DSCChannels")->value(), 0);
    QCOMPARE(spin("DSCChannels")->toolTip(), QString("set number of DSC Channels"));
    QCOMPARE(spin("MinCoverage")->minimum(), 0);
    QCOMPARE(spin("MinCoverage")->maximum(), 100);
    QCOMPARE(spin("MinCoverage")->value(), 50);
    QCOMPARE(spin("MinCoverage")->suffix(), QString("%"));
    QCOMPARE(entries("DetectorRecordLocation"),
             QString("At the detector, [Server of the station], Monitoring centre"));
    for (const QString name : {"Production", "AutoSeparation", "FilterSeparation", "OnlineRecombination",
                               "AutoRecording", "Detector", "PreClassifier"})
        QVERIFY2(!check(name)->isChecked(), qPrintable(name));

    const auto* select = m_dialog->findChild<QPushButton*>("ResourceSelection_OkButton");
    const auto* cancel = m_dialog->findChild<QPushButton*>("ResourceSelection_CancelButton");
    QCOMPARE(select->text(), QString("Select"));
    QCOMPARE(cancel->text(), QString("Cancel"));
    QVERIFY(select->isDefault());
    QVERIFY(!cancel->isDefault());
}

void TstResourceSelectionDialog::preClassifierBeginsUnchecked()
{
    open({receiver("HT720", "A")}, {false, true, true, {}});
    QVERIFY(!check("PreClassifier")->isChecked());
    QCOMPARE(check("PreClassifier")->toolTip(), QString("enable Preclassifier"));
    check("PreClassifier")->setChecked(true);
    QVERIFY(!m_dialog->isPreClassifierSelected());
    m_dialog->accept();
    QVERIFY(m_dialog->isPreClassifierSelected());
}

void TstResourceSelectionDialog::labelsAreBuddiesAndFieldsHaveAccessibleNames()
{
    open({receiver("HT720", "A")}, {true, true, true, {}});
    const auto* grid = m_dialog->findChild<QGridLayout*>("ResourceSelection_GridLayout");
    QSet<QString> names;
    for (int row = 0; row < grid->rowCount(); ++row) {
        const auto* label = qobject_cast<QLabel*>(grid->itemAtPosition(row, 0)->widget());
        const QWidget* field = grid->itemAtPosition(row, 1)->widget();
        QCOMPARE(label->buddy(), field);
        QVERIFY2(field->accessibleName().contains(label->text()), qPrintable(field->objectName()));
        names << field->accessibleName();
    }
    QCOMPARE(names.size(), grid->rowCount());
}

void TstResourceSelectionDialog::tabGoesFromRowToRow()
{
    open({receiver("HT720", "A", "Manual Timed", "X Y"), receiver("HT720", "B"),
          receiver("DirectionFinder", "C")},
         {true, true, true, {}});
    combo("DetectorType")->setCurrentIndex(1);
    check("OnlineRecombination")->setChecked(true);
    spin("DSCChannels")->setValue(1);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    QStringList names;
    for (int field = 0; field < 17; ++field) {
        names << m_dialog->focusWidget()->objectName().section('_', 1);
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names.join(' '),
             QString("TunerType BaseResource RecordLocation StartupModes PreClassifier Detector DetectorType "
                     "AutoSeparation FilterSeparation OnlineRecombination DSCChannels DetectorBaseResource "
                     "MinCoverage AutoRecording OkButton CancelButton TunerType"));
}

void TstResourceSelectionDialog::textsAreTranslated()
{
    const JedTest::ShoutingTranslator translator;
    open({receiver("HT720", "A")}, {true, false, true, {}});
    const auto shouted = [](const char* text) {
        return "JEDVEPLUGIN::ResourceSelectionDialog|" + QString(text).toUpper();
    };
    for (const QLabel* label : m_dialog->findChildren<QLabel*>())
        QVERIFY2(label->text().startsWith("JEDVEPLUGIN::ResourceSelectionDialog|"),
                 qPrintable(label->text()));
    QCOMPARE(find<QPushButton>("OkButton")->text(), shouted("Select"));
    QCOMPARE(find<QPushButton>("CancelButton")->text(), shouted("Cancel"));
    QCOMPARE(check("PreClassifier")->toolTip(), shouted("enable Preclassifier"));
    QCOMPARE(spin("DSCChannels")->toolTip(), shouted("set number of DSC Channels"));
    combo("DetectorType")->setCurrentIndex(1);
    QCOMPARE(spin("DSCChannels")->toolTip(), shouted("set number of ST Channels"));
    QCOMPARE(find<QLabel>("DSCChannelsLabel")->text(), shouted("ST Channels"));
}

void TstResourceSelectionDialog::typesAreSorted()
{
    open({receiver("DirectionFinder", "A"), receiver("Strange", "A"), receiver("TRV9KScanSettings", "A"),
          receiver("SignalRecorder", "A"), receiver("HT720", "A")},
         {});
    QCOMPARE(entries("TunerType"),
             QString("[HT720], SignalRecorder, TRV9KScanSettings, DirectionFinder, Strange"));
    QCOMPARE(m_dialog->getSelectedDescription()->getType(), QString("HT720"));
}

void TstResourceSelectionDialog::laterDescriptionReplacesAnEarlierOne()
{
    const DescriptionPtr earlier = receiver("HT720", "A");
    const DescriptionPtr later = receiver("HT720", "A");
    open({earlier, nullptr, receiver("DirectionFinder", "A"), later}, {});
    QCOMPARE(m_dialog->getSelectedDescription(), later);
    QCOMPARE(entries("BaseResource"), QString("[A] disabled"));
}

void TstResourceSelectionDialog::nothingToChooseFrom()
{
    open({}, {true, true, true, {}});
    QCOMPARE(entries("TunerType"), QString());
    QCOMPARE(entries("BaseResource"), QString(" disabled"));
    QCOMPARE(visibleFields(), QString("BaseResource PreClassifier TunerName TunerType"));
    QVERIFY(!m_dialog->getSelectedDescription());
    m_dialog->accept();
    QCOMPARE(results(), QString("none|||EnergyDetector|0 DSC|50%|||"));
}

void TstResourceSelectionDialog::unknownBaseResourceSelectsNothing()
{
    open({receiver("HT720", "a", "Manual Timed")}, {false, false, false, {}});
    QVERIFY(isVisible("StartupModes"));
    QVERIFY(QMetaObject::invokeMethod(m_dialog.get(), "baseResourceChanged", Q_ARG(QString, "z")));
    QVERIFY(!m_dialog->getSelectedDescription());
    QCOMPARE(m_dialog->getSelectedStartupMode(), QString());
    QCOMPARE(find<QLineEdit>("TunerName")->text(), QString());
    QCOMPARE(listed(), QString());
    QCOMPARE(visibleFields(), QString("BaseResource RecordLocation TunerName TunerType"));
}

void TstResourceSelectionDialog::typeFillsBaseResources()
{
    open({receiver("HT720", "b"), receiver("HT720", "a10"), receiver("HT720", "a9"), receiver("HT720", "B"),
          receiver("DirectionFinder", "x")},
         {});
    QCOMPARE(entries("BaseResource"), QString("[B], a10, a9, b"));
    combo("BaseResource")->setCurrentIndex(2);
    QCOMPARE(m_dialog->getSelectedDescription()->getBaseResource(), QString("a9"));
    QCOMPARE(find<QLineEdit>("TunerName")->text(), QString("Name of a9"));
    combo("TunerType")->setCurrentIndex(1);
    QCOMPARE(entries("BaseResource"), QString("[x] disabled"));
    QCOMPARE(m_dialog->getSelectedDescription()->getBaseResource(), QString("x"));
    QCOMPARE(find<QLineEdit>("TunerName")->text(), QString("Name of x"));
    combo("TunerType")->setCurrentIndex(0);
    QCOMPARE(entries("BaseResource"), QString("[B], a10, a9, b"));
    QCOMPARE(m_dialog->getSelectedDescription()->getBaseResource(), QString("B"));
}

void TstResourceSelectionDialog::baseResourcesAnnounceNothingWhileTheyAreFilled()
{
    open({receiver("HT720", "A"), receiver("DirectionFinder", "B"), receiver("DirectionFinder", "C")}, {});
    QSignalSpy spy(combo("BaseResource"), SIGNAL(currentIndexChanged(QString)));
    combo("TunerType")->setCurrentIndex(1);
    QCOMPARE(spy.count(), 0);
    combo("BaseResource")->setCurrentIndex(1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_dialog->getSelectedDescription()->getBaseResource(), QString("C"));
}

void TstResourceSelectionDialog::recordLocations_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("entriesOfBox");
    QTest::addColumn<QString>("taken");
    const QString second = QString(ALL_LOCATIONS).replace("At the receiver", "[At the receiver]");
    const QString third = QString(ALL_LOCATIONS).replace(STATION, "[" + STATION + "]");
    QTest::newRow("0") << "HT720" << second << "Receiver";
    QTest::newRow("1") << "TRV9KScanSettings" << third << "Station";
    QTest::newRow("2") << "DirectionFinder" << third << "Station";
    QTest::newRow("3") << "MeasurementReceiver" << QString() << QString();
    QTest::newRow("4") << "SignalRecorder" << QString() << QString();
    QTest::newRow("unknown") << "Strange" << QString() << QString();
}

void TstResourceSelectionDialog::recordLocations()
{
    QFETCH(QString, type);
    QFETCH(QString, entriesOfBox);
    QFETCH(QString, taken);

    // Once as the first type and once as a type that the user changes to.
    for (const bool isFirst : {true, false}) {
        QList<DescriptionPtr> resources{receiver(type, "A")};
        if (!isFirst)
            resources << receiver(type == "HT720" ? "MeasurementReceiver" : "HT720", "A");
        open(resources, {});
        combo("TunerType")->setCurrentText(type);
        QCOMPARE(entries("RecordLocation").remove(" disabled"), entriesOfBox);
        QCOMPARE(isVisible("RecordLocation"), !entriesOfBox.isEmpty());
        if (!entriesOfBox.isEmpty())
            QVERIFY(combo("RecordLocation")->isEnabled());
        QCOMPARE(m_dialog->getSelectedRecordLocation(), QString());
        m_dialog->accept();
        QCOMPARE(m_dialog->getSelectedRecordLocation(), taken);
    }
    if (taken.isEmpty())
        return;
    open({receiver(type, "A")}, {});
    combo("RecordLocation")->setCurrentText(NOT_RECORDED);
    m_dialog->accept();
    QCOMPARE(m_dialog->getSelectedRecordLocation(), QString("None"));
}

void TstResourceSelectionDialog::startupModes_data()
{
    QTest::addColumn<QString>("ofTheResource");
    QTest::addColumn<QStringList>("allowed");
    QTest::addColumn<QString>("listedModes");
    QTest::addColumn<QString>("taken");
    QTest::newRow("all without a limit")
        << "Timed Manual" << QStringList() << "[Starts at the set time], Started by the operator"
        << "Timed";
    QTest::newRow("limited") << "Timed Manual Permanent" << QStringList({"Permanent", "Manual", "Automatic"})
                             << "[Started by the operator], Runs permanently"
                             << "Manual";
    QTest::newRow("none allowed") << "Timed" << QStringList("Manual") << QString() << QString();
    QTest::newRow("none at all") << QString() << QStringList() << QString() << QString();
    QTest::newRow("of no known name") << "Sometimes" << QStringList() << "[Sometimes]"
                                      << "Sometimes";
}

void TstResourceSelectionDialog::startupModes()
{
    QFETCH(QString, ofTheResource);
    QFETCH(QStringList, allowed);
    QFETCH(QString, listedModes);
    QFETCH(QString, taken);

    open({receiver("HT720", "A", ofTheResource), receiver("HT720", "B", "Manual Timed OnRequest")},
         {false, false, false, allowed});
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(listed(), listedModes);
        QCOMPARE(isVisible("StartupModes"), !listedModes.isEmpty());
        QCOMPARE(m_dialog->getSelectedStartupMode(), taken);
        combo("BaseResource")->setCurrentIndex(1);
        combo("BaseResource")->setCurrentIndex(0);
    }
    m_dialog->accept();
    QCOMPARE(m_dialog->getSelectedStartupMode(), taken);
}

void TstResourceSelectionDialog::chosenStartupModeIsTaken()
{
    open({receiver("HT720", "A", "Timed Manual Permanent")}, {});
    modes()->setCurrentRow(2);
    QCOMPARE(m_dialog->getSelectedStartupMode(), QString("Permanent"));
    m_dialog->accept();
    QCOMPARE(m_dialog->getSelectedStartupMode(), QString("Permanent"));
}

void TstResourceSelectionDialog::otherBaseResourceBeginsWithItsFirstMode()
{
    open({receiver("HT720", "A", "Timed Manual"), receiver("HT720", "B"),
          receiver("HT720", "C", "Permanent Timed")},
         {});
    modes()->setCurrentRow(1);
    combo("BaseResource")->setCurrentText("B");
    QCOMPARE(m_dialog->getSelectedStartupMode(), QString());
    QCOMPARE(listed(), QString());
    QVERIFY(!isVisible("StartupModes"));
    combo("BaseResource")->setCurrentText("C");
    QCOMPARE(m_dialog->getSelectedStartupMode(), QString("Permanent"));
    QVERIFY(isVisible("StartupModes"));
}

JED_TEST_MAIN(TstResourceSelectionDialog)
#include "tst_resourceselectiondialog.moc"
