#include "resourcedescription.h"

#include "componentdescriptor.h"

#include <jobxml/tunerproperties.h>
#include <support/tracerecorder.h>
#include <values/node.h>

#include <type_traits>

using JEDVEPLUGIN::ComponentDescriptor;
using JEDVEPLUGIN::ResourceDescription;

static_assert(std::has_virtual_destructor<ResourceDescription>::value, "may be derived from");
static_assert(std::is_copy_constructible<ResourceDescription>::value, "a value");
static_assert(std::is_copy_assignable<ResourceDescription>::value, "a value");

namespace {

const char* const REQUIRED = "name='Receiver' type='HT720' baseresource='HF-1' quantity='3'";

/// A tuner property text: further attributes of the root, and its content.
QString tunerProperties(const QString& attributes, const QString& content = QString())
{
    return QStringLiteral(
               "<?xml version='1.0' encoding='UTF-8'?>\n<TunerProperties %1 %2>%3</TunerProperties>\n")
        .arg(QLatin1String(REQUIRED), attributes, content);
}

/// "type/name" for each.
QStringList namesOf(const QList<std::shared_ptr<ComponentDescriptor>>& components)
{
    QStringList names;
    for (const auto& component : components)
        names.append(QStringLiteral("%1/%2").arg(component->getType(), component->getComponentName()));
    return names;
}

/// What must hold for a description of a text that could not be taken: nothing but perhaps the version is
/// there.
bool isNeutral(const ResourceDescription& description)
{
    return !description.isValid() && description.getName().isNull() && description.getType().isNull() &&
           description.getBaseResource().isNull() && description.getParentBaseResource().isNull() &&
           description.getConnectableResources().isEmpty() && description.getQuantity() == 0 &&
           description.getComponents().isEmpty() && description.getStartupModes().isEmpty() &&
           !description.getComponent(QString()) && !description.getComponentByName(QString());
}

} // namespace

class TstResourceDescription : public QObject
{
    Q_OBJECT
private slots:
    void takesTheAttributesOfTheFile();
    void takesTheNameOfTheType_data();
    void takesTheNameOfTheType();
    void theParentIsEmptyWhereTheFileHasNone();
    void splitsTheConnectableResources_data();
    void splitsTheConnectableResources();
    void theStartupModesKeepTheirOrder();
    void withoutStartupModesTheListIsEmpty();

    void theComponentsKeepTheirOrder();
    void findsComponentsByTypeAndByName();
    void ofEqualComponentsTheLaterOneIsFound();
    void everyLookUpGivesTheOneDescriptor();
    void componentsHoldTheirNodes();

    void acceptsVersions_data();
    void acceptsVersions();
    void rejectsVersions_data();
    void rejectsVersions();
    void aTextWithoutVersionIsAccepted();
    void theVersionIsLookedAtBeforeTheContent();

    void rejectsTextsThatDoNotLoad_data();
    void rejectsTextsThatDoNotLoad();
    void inconsistentContentIsTaken_data();
    void inconsistentContentIsTaken();
    void unknownContentIsIgnored();
    void readsTextInAnyScript();

    void appendsStartupModesWithoutLookingForDuplicates();
    void replacesTheType();
    void copiesShareTheComponentsAndNothingElse();
    void neitherReadingNorRejectingTraces();
};

void TstResourceDescription::takesTheAttributesOfTheFile()
{
    const ResourceDescription description(tunerProperties(
        QStringLiteral("version='1.2' parentBaseResource='HF-0' connectableResources='DF-1,DF-2'")));

    QVERIFY(description.isValid());
    QCOMPARE(description.getName(), QStringLiteral("Receiver"));
    QCOMPARE(description.getType(), QStringLiteral("HT720"));
    QCOMPARE(description.getBaseResource(), QStringLiteral("HF-1"));
    QCOMPARE(description.getParentBaseResource(), QStringLiteral("HF-0"));
    QCOMPARE(description.getVersion(), QStringLiteral("1.2"));
    QCOMPARE(description.getConnectableResources(), QStringList({"DF-1", "DF-2"}));
    QCOMPARE(description.getQuantity(), 3);
    QVERIFY(description.getComponents().isEmpty());
}

void TstResourceDescription::takesTheNameOfTheType_data()
{
    QTest::addColumn<QString>("type");
    for (const QString& type : JobXml::TunerProperties::Gettypes())
        QTest::newRow(qPrintable(type)) << type;
}

void TstResourceDescription::takesTheNameOfTheType()
{
    QFETCH(QString, type);

    const ResourceDescription description(
        QStringLiteral("<TunerProperties name='n' type='%1' baseresource='b' quantity='1'/>").arg(type));

    QVERIFY(description.isValid());
    QCOMPARE(description.getType(), type);
}

void TstResourceDescription::theParentIsEmptyWhereTheFileHasNone()
{
    QVERIFY(ResourceDescription(tunerProperties(QString())).getParentBaseResource().isEmpty());
    QVERIFY(ResourceDescription(tunerProperties("parentBaseResource=''")).getParentBaseResource().isEmpty());
}

void TstResourceDescription::splitsTheConnectableResources_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QStringList>("resources");

    QTest::newRow("none") << QString() << QStringList();
    QTest::newRow("empty") << "connectableResources=''" << QStringList();
    QTest::newRow("commas only") << "connectableResources=',,'" << QStringList();
    QTest::newRow("one") << "connectableResources='a'" << QStringList({"a"});
    QTest::newRow("leading, doubled and trailing commas")
        << "connectableResources=',a,,b,'" << QStringList({"a", "b"});
    QTest::newRow("blanks stay") << "connectableResources='a, b'" << QStringList({"a", " b"});
    QTest::newRow("order and duplicates stay")
        << "connectableResources='b,a,b'" << QStringList({"b", "a", "b"});
    QTest::newRow("no other separator") << "connectableResources='a;b'" << QStringList({"a;b"});
}

void TstResourceDescription::splitsTheConnectableResources()
{
    QFETCH(QString, attribute);
    QFETCH(QStringList, resources);

    QCOMPARE(ResourceDescription(tunerProperties(attribute)).getConnectableResources(), resources);
}

void TstResourceDescription::theStartupModesKeepTheirOrder()
{
    const QStringList all = JobXml::StartupModes::GetStartupModes();
    QVERIFY(all.size() > 2);
    const QStringList modes = {all.at(2), all.at(0), all.at(2)};
    QString content;
    for (const QString& mode : modes)
        content += QStringLiteral("<StartupMode>%1</StartupMode>").arg(mode);

    const ResourceDescription description(
        tunerProperties(QString(), QStringLiteral("<StartupModes>%1</StartupModes>").arg(content)));

    QVERIFY(description.isValid());
    QCOMPARE(description.getStartupModes(), modes);
}

void TstResourceDescription::withoutStartupModesTheListIsEmpty()
{
    QVERIFY(ResourceDescription(tunerProperties(QString())).getStartupModes().isEmpty());
    QVERIFY(ResourceDescription(tunerProperties(QString(), "<StartupModes/>")).getStartupModes().isEmpty());
}

void TstResourceDescription::theComponentsKeepTheirOrder()
{
    const ResourceDescription description(tunerProperties(
        QString(),
        "<Component type='z' name='1'/><Component type='a' name='3'/><Component type='m' name='2'/>"));

    QCOMPARE(namesOf(description.getComponents()), QStringList({"z/1", "a/3", "m/2"}));
}

void TstResourceDescription::findsComponentsByTypeAndByName()
{
    const ResourceDescription description(tunerProperties(
        QString(), "<Component type='Tuner' name='First'/><Component type='First' name='Tuner'/>"));

    QCOMPARE(description.getComponent("Tuner"), description.getComponents().at(0));
    QCOMPARE(description.getComponent("First"), description.getComponents().at(1));
    QCOMPARE(description.getComponentByName("Tuner"), description.getComponents().at(1));
    QCOMPARE(description.getComponentByName("First"), description.getComponents().at(0));
    for (const char* const unknown : {"tuner", "Tuner ", ""}) {
        QVERIFY(!description.getComponent(unknown));
        QVERIFY(!description.getComponentByName(unknown));
    }
}

void TstResourceDescription::ofEqualComponentsTheLaterOneIsFound()
{
    const ResourceDescription description(
        tunerProperties(QString(), "<Component type='T' name='a'/><Component type='T' name='b'/>"
                                   "<Component type='U' name='a'/>"));

    QCOMPARE(namesOf(description.getComponents()), QStringList({"T/a", "T/b", "U/a"}));
    QCOMPARE(description.getComponent("T"), description.getComponents().at(1));
    QCOMPARE(description.getComponentByName("a"), description.getComponents().at(2));
    QCOMPARE(description.getComponentByName("b"), description.getComponents().at(1));
}

void TstResourceDescription::everyLookUpGivesTheOneDescriptor()
{
    const ResourceDescription description(tunerProperties(QString(), "<Component type='T' name='a'/>"));

    description.getComponent("T")->getvtNode("new");

    QVERIFY(description.getComponents().at(0)->hasVtNode("new"));
    QVERIFY(description.getComponentByName("a")->hasVtNode("new"));
}

void TstResourceDescription::componentsHoldTheirNodes()
{
    const ResourceDescription description(tunerProperties(
        QString(), "<Component type='T' name='ADemComponent' optional='true'>"
                   "<Node id='ADemSettings'><ValueItem><ValueInt id='Squelch' value='12'/></ValueItem></Node>"
                   "</Component><Component type='U' name='u'/>"));
    const auto component = description.getComponent("T");
    QVERIFY(component);
    Node root;
    component->createVTConfig(&root);

    QVERIFY(component->isOptional());
    QVERIFY(!description.getComponent("U")->isOptional());
    QCOMPARE(component->getParameterSetNames(), QList<QString>({"ADemSettings"}));
    QVERIFY(root.GetChildNode("ADemSettings") != nullptr);
    QVERIFY(root.GetChildNode("ADemSettings")->GetChild("Squelch") != nullptr);
    QCOMPARE(root.GetChildNode("ADemSettings")->GetChild("Squelch")->GetText(), QStringLiteral("12"));
}

void TstResourceDescription::acceptsVersions_data()
{
    QTest::addColumn<QString>("version");
    for (const char* const version :
         {"", "1.1", "1.10", "1.2", "2", "10.0", "1e3", " 1.2 ", "inf", "1.0999999999999999999999"})
        QTest::newRow(qPrintable(QStringLiteral("'%1'").arg(version))) << QString(version);
}

void TstResourceDescription::acceptsVersions()
{
    QFETCH(QString, version);

    const ResourceDescription description(tunerProperties(QStringLiteral("version='%1'").arg(version)));

    QVERIFY(description.isValid());
    QCOMPARE(description.getVersion(), version);
    QCOMPARE(description.getName(), QStringLiteral("Receiver"));
}

void TstResourceDescription::rejectsVersions_data()
{
    QTest::addColumn<QString>("version");
    for (const char* const version :
         {"1.0", "1.09", "0", "-2", "abc", "1,2", "1.1.0", "1.1f", "0x10", "nan", "-inf", " ", "1e999"})
        QTest::newRow(qPrintable(QStringLiteral("'%1'").arg(version))) << QString(version);
}

void TstResourceDescription::rejectsVersions()
{
    QFETCH(QString, version);

    const ResourceDescription description(tunerProperties(
        QStringLiteral("version='%1' parentBaseResource='p' connectableResources='a'").arg(version),
        "<StartupModes><StartupMode>Manual</StartupMode></StartupModes><Component type='T' name='a'/>"));

    QVERIFY(isNeutral(description));
    QCOMPARE(description.getVersion(), version);
}

void TstResourceDescription::aTextWithoutVersionIsAccepted()
{
    const ResourceDescription description(tunerProperties(QString()));

    QVERIFY(description.isValid());
    QVERIFY(description.getVersion().isEmpty());
}

void TstResourceDescription::theVersionIsLookedAtBeforeTheContent()
{
    const ResourceDescription description(QStringLiteral("<TunerProperties version='1.0'/>"));

    QVERIFY(isNeutral(description));
    QCOMPARE(description.getVersion(), QStringLiteral("1.0"));
}

void TstResourceDescription::rejectsTextsThatDoNotLoad_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("no markup") << QStringLiteral("Receiver");
    QTest::newRow("end missing") << QStringLiteral("<TunerProperties name='n' version='1.0'><Component>");
    QTest::newRow("another root") << QStringLiteral("<Job version='1.0'/>");
    QTest::newRow("two roots") << QStringLiteral("<TunerProperties version='1.0'/><TunerProperties/>");
    QTest::newRow("attribute twice") << QStringLiteral("<TunerProperties version='1.0' version='1.2'/>");
    QTest::newRow("document type") << QStringLiteral(
        "<!DOCTYPE TunerProperties><TunerProperties version='1.2'/>");
    QTest::newRow("bytes that are no text, in the name of an attribute")
        << tunerProperties(QStringLiteral("colo\uFFFDr='red'"));
    QTest::newRow("bytes that are no text, in the name of an element")
        << tunerProperties(QString(), QStringLiteral("<Antenna><p\uFFFDle/></Antenna>"));
    QTest::newRow("NUL character") << tunerProperties(QString()).insert(40, QChar(0));
    QTest::newRow("text behind a NUL character") << tunerProperties(QString()) + QChar(0) + "<x>";
}

void TstResourceDescription::rejectsTextsThatDoNotLoad()
{
    QFETCH(QString, text);

    const ResourceDescription description(text);

    QVERIFY(isNeutral(description));
    QVERIFY(description.getVersion().isNull());
}

void TstResourceDescription::inconsistentContentIsTaken_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("content");

    QTest::newRow("no attributes") << QStringLiteral("<TunerProperties/>") << QStringLiteral("|||1|");
    QTest::newRow("no number") << tunerProperties(QString()).replace("'3'", "'many'")
                               << QStringLiteral("Receiver|HT720|HF-1|1|");
    QTest::newRow("quantity below its range")
        << tunerProperties(QString()).replace("'3'", "'-3'") << QStringLiteral("Receiver|HT720|HF-1|-3|");
    QTest::newRow("type that does not exist")
        << tunerProperties(QString()).replace("HT720", "HT999") << QStringLiteral("Receiver||HF-1|3|");
    QTest::newRow("component without type")
        << tunerProperties(QString(), "<Component name='a'/>") << QStringLiteral("Receiver|HT720|HF-1|3|/a");
}

void TstResourceDescription::inconsistentContentIsTaken()
{
    QFETCH(QString, text);
    QFETCH(QString, content);

    const ResourceDescription description(text);

    QVERIFY(description.isValid());
    QCOMPARE(QStringList({description.getName(), description.getType(), description.getBaseResource(),
                          QString::number(description.getQuantity()),
                          namesOf(description.getComponents()).join(',')})
                 .join('|'),
             content);
}

void TstResourceDescription::unknownContentIsIgnored()
{
    const ResourceDescription description(tunerProperties(
        "version='1.3' colour='red'", "<Antenna/><!-- a --><Component type='T' name='a'/>text"));

    QVERIFY(description.isValid());
    QCOMPARE(namesOf(description.getComponents()), QStringList({"T/a"}));
}

void TstResourceDescription::readsTextInAnyScript()
{
    const QString name = QString::fromUtf8("Küstenfunk & Ω 海 \uFFFD");

    const ResourceDescription description(
        QStringLiteral("<TunerProperties name='%1' type='HT720' baseresource='b' quantity='1'/>")
            .arg(name.toHtmlEscaped()));

    QCOMPARE(description.getName(), name);
}

void TstResourceDescription::appendsStartupModesWithoutLookingForDuplicates()
{
    ResourceDescription description(
        tunerProperties(QString(), "<StartupModes><StartupMode>Manual</StartupMode></StartupModes>"));

    description.appendStartupMode("Own");
    description.appendStartupMode("Manual");

    QCOMPARE(description.getStartupModes(), QStringList({"Manual", "Own", "Manual"}));
}

void TstResourceDescription::replacesTheType()
{
    ResourceDescription description(tunerProperties(QString()));

    description.setType("Something else");

    QCOMPARE(description.getType(), QStringLiteral("Something else"));
}

void TstResourceDescription::copiesShareTheComponentsAndNothingElse()
{
    const ResourceDescription original(tunerProperties(
        "version='1.2' parentBaseResource='p' connectableResources='a'",
        "<StartupModes><StartupMode>Manual</StartupMode></StartupModes><Component type='T' name='c'/>"));
    ResourceDescription copy(original);
    ResourceDescription assigned{QString()};
    assigned = original;

    for (const ResourceDescription* const description : {&copy, &assigned}) {
        QVERIFY(description->isValid());
        QCOMPARE(description->getName(), original.getName());
        QCOMPARE(description->getType(), original.getType());
        QCOMPARE(description->getBaseResource(), original.getBaseResource());
        QCOMPARE(description->getParentBaseResource(), QStringLiteral("p"));
        QCOMPARE(description->getVersion(), QStringLiteral("1.2"));
        QCOMPARE(description->getConnectableResources(), QStringList({"a"}));
        QCOMPARE(description->getStartupModes(), QStringList({"Manual"}));
        QCOMPARE(description->getQuantity(), 3);
        QCOMPARE(description->getComponents(), original.getComponents());
        QCOMPARE(description->getComponent("T"), original.getComponent("T"));
        QCOMPARE(description->getComponentByName("c"), original.getComponentByName("c"));
    }
    copy.setType("changed");
    assigned.appendStartupMode("appended");
    QCOMPARE(original.getType(), QStringLiteral("HT720"));
    QCOMPARE(original.getStartupModes(), QStringList({"Manual"}));
}

void TstResourceDescription::neitherReadingNorRejectingTraces()
{
    JedTest::TraceRecorder traces;

    ResourceDescription{tunerProperties(QString())};
    ResourceDescription{tunerProperties("version='1.0'")};
    ResourceDescription{QStringLiteral("<")};

    QCOMPARE(traces.take(), QStringList());
}

QTEST_GUILESS_MAIN(TstResourceDescription)
#include "tst_resourcedescription.moc"
