#include <componentdescriptor.h>
#include <jobxml/parametersettext.h>
#include <jobxml/settings.h>
#include <parametersetmapper.h>
#include <quilappstartup/cfgcenter.h>
#include <resourcedescription.h>
#include <support/settingfields.h>
#include <support/stationfiles.h>
#include <values/node.h>
#include <zubase/errorhandler.h>

#include <QMap>
#include <QSet>

#include <numeric>

using JedTest::itemsOf;
using JedTest::TunerFile;
using JedTest::tunerFiles;
using JedTest::TunerItem;
using JEDVEPLUGIN::ComponentDescriptor;
using JEDVEPLUGIN::ParameterSetMapper;
using JEDVEPLUGIN::ResourceDescription;
using JobXml::ParameterSetText;
using REPORTGENERATOR::Field;
using REPORTGENERATOR::FieldKind;

/// What the tuner property files of the example station promise to everybody who learns from them.
class TstExampleReceivers : public QObject
{
    Q_OBJECT
private slots:
    void filesAreValid_data();
    void filesAreValid();
    void libraryReadsThemAll();
    void thereAreEnough();
    void everyKindOfResource();
    void noTwoForOneResource();
    void parentsHaveChildrenThatShare();
    void connectableResourcesExist();
    void startupModes();
    void everyKindOfValueItem();
    void optionalComponents();
    void everyComponentOfTheTable();
    void nodePerParameterSet();
    void noTwoAgree();
    void everyIdNamesAField_data();
    void everyIdNamesAField();
    void mostFieldsAppear();
    void defaultsAreInTheirRanges_data();
    void defaultsAreInTheirRanges();
    void rangesAreInTheSchema_data();
    void rangesAreInTheSchema();
    void selectionsNameWhatTheSchemaHas_data();
    void selectionsNameWhatTheSchemaHas();
    void frequenciesOfRealServices();
    void valuesBecomeValidParameterSets_data();
    void valuesBecomeValidParameterSets();

private:
    void addFiles();
};

namespace {

const TunerFile& fileOf(const QString& name)
{
    for (const TunerFile& file : tunerFiles()) {
        if (file.name == name)
            return file;
    }
    return tunerFiles().constFirst();
}

QString typeOf(const TunerFile& file)
{
    return JobXml::TunerProperties::typeToName(file.content.Gettype());
}

/// Everything by which two files may differ as receivers: components, values, their kinds and ranges.
QStringList signatureOf(const TunerFile& file)
{
    QStringList result;
    for (const TunerItem& item : itemsOf(file)) {
        QStringList parts{item.component, item.set, item.id(), item.kind};
        if (item.isNumeric())
            parts << item.text("min") << item.text("max");
        result << parts.join(' ');
    }
    return result;
}

QVector<double> numbersOf(const TunerItem& item)
{
    return {item.text("value").toDouble(), item.text("min").toDouble(), item.text("max").toDouble(),
            item.text("step").toDouble()};
}

int selectionCount(const TunerItem& item)
{
    return REPORTGENERATOR::itemCount(*item.element, "SelectionItem");
}

QString selectionText(const TunerItem& item, int index, const char* field)
{
    return REPORTGENERATOR::fieldText(*item.element,
                                      QString("SelectionItem[%1].%2").arg(QString::number(index), field));
}

} // namespace

void TstExampleReceivers::addFiles()
{
    QTest::addColumn<QString>("name");
    for (const TunerFile& file : tunerFiles())
        QTest::newRow(qPrintable(file.name)) << file.name;
}

void TstExampleReceivers::filesAreValid_data()
{
    addFiles();
}

void TstExampleReceivers::filesAreValid()
{
    QFETCH(QString, name);
    JobXml::TunerProperties properties;
    properties.SetValidate(true);

    QVERIFY2(properties.SetXmlString(fileOf(name).text, true), qPrintable(properties.GetCheckReason()));
    QVERIFY2(properties.Check(), qPrintable(properties.GetCheckReason()));
    QVERIFY(properties.problems().isEmpty());
    QCOMPARE(properties.GetInitialVersionLoaded(), QString("1.2"));
    QCOMPARE(properties.GetXmlString(true), fileOf(name).text);
}

void TstExampleReceivers::libraryReadsThemAll()
{
    CfgCenter::Instance()->SetInstallation(JedTest::stationFolder().absolutePath());
    QVERIFY2(CfgCenter::Instance()->GetProblems().isEmpty(),
             qPrintable(CfgCenter::Instance()->GetProblems().join('\n')));

    ErrorHandler::Instance()->SetTraceMask(0);
    const QList<std::shared_ptr<ResourceDescription>> read = ResourceDescription::readAllResourceFiles();

    QCOMPARE(read.size(), tunerFiles().size());
    for (int i = 0; i < read.size(); ++i)
        QCOMPARE(read.at(i)->getName(), tunerFiles().at(i).content.Getname());
}

void TstExampleReceivers::thereAreEnough()
{
    QVERIFY(tunerFiles().size() >= 14);
}

void TstExampleReceivers::everyKindOfResource()
{
    QSet<QString> kinds;
    for (const TunerFile& file : tunerFiles())
        kinds.insert(typeOf(file));

    const QStringList all = JobXml::TunerProperties::Gettypes();
    QCOMPARE(kinds, QSet<QString>(all.begin(), all.end()));
}

void TstExampleReceivers::noTwoForOneResource()
{
    QSet<QString> seen;
    for (const TunerFile& file : tunerFiles()) {
        const QString key = typeOf(file) + ":" + file.content.Getbaseresource();
        QVERIFY2(!seen.contains(key), qPrintable(key));
        seen.insert(key);
    }
}

void TstExampleReceivers::parentsHaveChildrenThatShare()
{
    QMap<QString, int> quantities;
    QMap<QString, QVector<int>> children;
    for (const TunerFile& file : tunerFiles())
        quantities.insert(typeOf(file) + ":" + file.content.Getbaseresource(), file.content.Getquantity());
    for (const TunerFile& file : tunerFiles()) {
        if (file.content.IsparentBaseResourceSet())
            children[typeOf(file) + ":" + file.content.GetparentBaseResource()] << file.content.Getquantity();
    }

    int shared = 0;
    for (auto parent = children.constBegin(); parent != children.constEnd(); ++parent) {
        QVERIFY2(quantities.contains(parent.key()), qPrintable(parent.key()));
        const int total = std::accumulate(parent->begin(), parent->end(), 0);
        shared += parent->size() >= 2 && total > quantities.value(parent.key()) ? 1 : 0;
    }
    QVERIFY(shared >= 2);
}

void TstExampleReceivers::connectableResourcesExist()
{
    QSet<QString> bases;
    for (const TunerFile& file : tunerFiles())
        bases.insert(file.content.Getbaseresource());

    int several = 0;
    for (const TunerFile& file : tunerFiles()) {
        const QStringList names = ResourceDescription(file.text).getConnectableResources();
        several += names.size() >= 2 ? 1 : 0;
        for (const QString& name : names)
            QVERIFY2(bases.contains(name), qPrintable(file.name + ": " + name));
    }
    QVERIFY(several >= 1);
}

void TstExampleReceivers::startupModes()
{
    QSet<QString> seen;
    for (const TunerFile& file : tunerFiles()) {
        const QStringList modes = ResourceDescription(file.text).getStartupModes();
        seen += QSet<QString>(modes.begin(), modes.end());
    }

    const QStringList all = JobXml::StartupModes::GetStartupModes();
    QCOMPARE(seen, QSet<QString>(all.begin(), all.end()));
}

void TstExampleReceivers::everyKindOfValueItem()
{
    QSet<QString> kinds;
    for (const TunerFile& file : tunerFiles()) {
        for (const TunerItem& item : itemsOf(file))
            kinds.insert(item.kind);
    }

    for (int i = 0; i < 10; ++i)
        QVERIFY2(kinds.contains(JobXml::ValueItem::ChoiceValueItemToName(i)),
                 qPrintable(JobXml::ValueItem::ChoiceValueItemToName(i)));
    QCOMPARE(kinds.size(), 10);
}

void TstExampleReceivers::optionalComponents()
{
    int optional = 0;
    int required = 0;
    for (const TunerFile& file : tunerFiles()) {
        for (const JobXml::Component& component : file.content.GetComponent())
            ++(component.Getoptional() ? optional : required);
    }

    QVERIFY(optional >= 5);
    QVERIFY(required > optional);
}

void TstExampleReceivers::everyComponentOfTheTable()
{
    // Resource type, and a parameter set of each component that the table knows for it.
    const QMap<QString, QStringList> table{
        {"HT720",
         {"ActivityDetectionSettings", "ADemSettings", "ClassifierSettings", "DDemSettings", "DF_Settings",
          "DSCSettings", "EDSettings", "FFTSettings", "TunerSettings", "JobAutomaticSettings",
          "AutoRecordingSettings", "SignalDescriptions", "FHPJobSettings", "CompressionSettings"}},
        {"TRV9KScanSettings", {"ScanSettings"}},
        {"DirectionFinder", {"ScanSettings"}},
    };

    for (auto row = table.constBegin(); row != table.constEnd(); ++row) {
        QSet<QString> components;
        for (const TunerFile& file : tunerFiles()) {
            if (typeOf(file) != row.key())
                continue;
            for (const JobXml::Component& component : file.content.GetComponent())
                components.insert(component.Getname());
        }
        for (const QString& set : row.value()) {
            const QString component = ParameterSetMapper::getComponentName(row.key(), set);
            QVERIFY2(!component.isEmpty() && components.contains(component),
                     qPrintable(row.key() + " " + set));
        }
    }
}

void TstExampleReceivers::nodePerParameterSet()
{
    for (const TunerFile& file : tunerFiles()) {
        for (const JobXml::Component& component : file.content.GetComponent()) {
            const ComponentDescriptor descriptor(component);
            const QString where = file.name + ": " + component.Getname();
            QVERIFY2(!descriptor.getParameterSetNames().isEmpty(), qPrintable(where));
            QCOMPARE(descriptor.getType(), descriptor.getComponentName());
            for (const QString& set : descriptor.getParameterSetNames())
                QVERIFY2(descriptor.hasVtNode(set), qPrintable(where + " " + set));
        }
    }
}

void TstExampleReceivers::noTwoAgree()
{
    QMap<QStringList, QString> seen;
    for (const TunerFile& file : tunerFiles()) {
        const QStringList signature = signatureOf(file);
        QVERIFY2(!seen.contains(signature), qPrintable(file.name + " and " + seen.value(signature)));
        seen.insert(signature, file.name);
    }
}

void TstExampleReceivers::everyIdNamesAField_data()
{
    addFiles();
}

void TstExampleReceivers::everyIdNamesAField()
{
    QFETCH(QString, name);
    const TunerFile& file = fileOf(name);
    QVERIFY(!itemsOf(file).isEmpty());

    for (const TunerItem& item : itemsOf(file))
        QVERIFY2(item.field(), qPrintable(item.where(file)));
}

void TstExampleReceivers::mostFieldsAppear()
{
    QMap<const Field*, QString> all;
    const QVector<REPORTGENERATOR::ParameterSet> sets = JobXml::parameterSets();
    for (const REPORTGENERATOR::ParameterSet& set : sets) {
        for (const JedTest::PathAndField& row : JedTest::settingFields(*set.table, true))
            all.insert(row.field, QString(set.name) + "/" + row.path);
    }
    QMap<const Field*, QString> missing = all;

    for (const TunerFile& file : tunerFiles()) {
        for (const TunerItem& item : itemsOf(file))
            missing.remove(item.field());
    }

    QVERIFY(all.size() > 200);
    QVERIFY2(missing.size() * 5 <= all.size(), qPrintable(missing.values().join('\n')));
}

void TstExampleReceivers::defaultsAreInTheirRanges_data()
{
    addFiles();
}

void TstExampleReceivers::defaultsAreInTheirRanges()
{
    QFETCH(QString, name);
    const TunerFile& file = fileOf(name);

    for (const TunerItem& item : itemsOf(file)) {
        if (item.isNumeric()) {
            const QVector<double> numbers = numbersOf(item);
            QVERIFY2(numbers.at(1) < numbers.at(2), qPrintable(item.where(file)));
            QVERIFY2(numbers.at(1) <= numbers.at(0) && numbers.at(0) <= numbers.at(2),
                     qPrintable(item.where(file)));
            QVERIFY2(numbers.at(3) >= 0, qPrintable(item.where(file)));
        } else if (item.kind == "ValueSelection") {
            const int index = item.text("index").toInt();
            QVERIFY2(index >= 0 && index < selectionCount(item), qPrintable(item.where(file)));
        }
    }
}

void TstExampleReceivers::rangesAreInTheSchema_data()
{
    addFiles();
}

void TstExampleReceivers::rangesAreInTheSchema()
{
    QFETCH(QString, name);
    const TunerFile& file = fileOf(name);

    for (const TunerItem& item : itemsOf(file)) {
        const Field& field = *item.field();
        if (!field.isNumber() || field.list)
            continue;
        QVector<double> numbers = item.isNumeric() ? numbersOf(item).mid(0, 3) : QVector<double>();
        if (item.kind == "ValueSelection") {
            for (int i = 0; i < selectionCount(item); ++i)
                numbers << selectionText(item, i, "value").toDouble();
        } else if (!item.isNumeric()) {
            numbers << item.text("value").toDouble();
        }
        for (const double number : numbers)
            QVERIFY2(number >= field.minimum().toDouble() && number <= field.maximum().toDouble(),
                     qPrintable(item.where(file)));
    }
}

void TstExampleReceivers::selectionsNameWhatTheSchemaHas_data()
{
    addFiles();
}

void TstExampleReceivers::selectionsNameWhatTheSchemaHas()
{
    QFETCH(QString, name);
    const TunerFile& file = fileOf(name);

    for (const TunerItem& item : itemsOf(file)) {
        const Field& field = *item.field();
        QCOMPARE(item.kind == "ValueStringList", field.list);
        if (!field.list)
            QCOMPARE(item.kind == "ValueSelection" && !field.isNumber(),
                     field.kind == FieldKind::Enumeration);
        for (int i = 0; field.enumeration && !field.list && i < selectionCount(item); ++i) {
            const QString choice = selectionText(item, i, "name");
            QVERIFY2(field.enumeration->number(choice) >= 0, qPrintable(item.where(file) + " " + choice));
        }
    }
}

void TstExampleReceivers::frequenciesOfRealServices()
{
    QSet<QString> frequencies;
    for (const TunerFile& file : tunerFiles()) {
        for (const TunerItem& item : itemsOf(file)) {
            if (item.id() == "CenterFrequency")
                frequencies.insert(item.text("value"));
        }
    }

    // Marine channel 16, aeronautical emergency, ISM, PMR446, maritime distress on medium wave.
    for (const char* frequency : {"156800000", "121500000", "433920000", "446006250", "2182000"})
        QVERIFY2(frequencies.contains(frequency), frequency);
}

void TstExampleReceivers::valuesBecomeValidParameterSets_data()
{
    addFiles();
}

void TstExampleReceivers::valuesBecomeValidParameterSets()
{
    QFETCH(QString, name);
    ::Node root;
    const ResourceDescription description(fileOf(name).text);
    for (const std::shared_ptr<ComponentDescriptor>& component : description.getComponents())
        component->createVTConfig(&root);
    QVERIFY(root.GetChildNodeCount() > 0);

    const QVector<::Node*> nodes = root.GetChildNodes();
    for (::Node* node : nodes) {
        ParameterSetText::Report report;
        const QString text = ParameterSetText::toText(*node, QString(), &report);
        QVERIFY2(report.isClean(), qPrintable(node->GetId() + " " + report.textsNotConverted.join(' ')));
        const std::unique_ptr<REPORTGENERATOR::IRGObject> element(
            JobXml::findParameterSet(node->GetId())->table->create());
        element->SetValidate(true);
        QVERIFY2(element->SetXmlString(text, false),
                 qPrintable(node->GetId() + " " + element->GetCheckReason()));
        QVERIFY(ParameterSetText::fromText(*node, text, &report));
        QVERIFY2(report.isClean(), qPrintable(node->GetId()));
        QCOMPARE(ParameterSetText::toText(*node), text);
    }
}

QTEST_GUILESS_MAIN(TstExampleReceivers)
#include "tst_examplereceivers.moc"
