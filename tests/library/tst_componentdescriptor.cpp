#include "componentdescriptor.h"

#include <support/tunersamples.h>
#include <support/valuetreetext.h>

#include <type_traits>

using JedTest::component;
using JEDVEPLUGIN::ComponentDescriptor;

static_assert(!std::is_polymorphic<ComponentDescriptor>::value, "a plain value");
static_assert(std::is_copy_constructible<ComponentDescriptor>::value, "a plain value");
static_assert(std::is_copy_assignable<ComponentDescriptor>::value, "a plain value");

namespace {

QStringList idsOf(const ComponentDescriptor& descriptor)
{
    QStringList ids;
    for (const JobXml::Node& node : descriptor.getVtNodes())
        ids.append(node.Getid());
    return ids;
}

} // namespace

class TstComponentDescriptor : public QObject
{
    Q_OBJECT
private slots:
    void takesTypeNameOptionalAndNodes();
    void anEmptyComponentGivesADescriptorWithoutAnything();
    void asksTheMapperWithTheNameNotTheType();
    void parameterSetNamesAreFixedAtConstruction();
    void copiesOfADescriptorAreIndependent();
    void theDescriptorOutlivesItsComponent();
    void getvtNodeGivesTheFirstNodeOfThatId();
    void getvtNodeComparesExactly();
    void getvtNodeAppendsAMissingNode();
    void hasVtNodeNeverAdds();
    void appendNodeDoesNotLookForDuplicates();
    void changesThroughGetvtNodeShowInTheTree();
};

void TstComponentDescriptor::takesTypeNameOptionalAndNodes()
{
    JobXml::Component source;
    source.Settype(QStringLiteral("Tuner type"));
    source.Setname(QStringLiteral("Tuner name"));
    source.Setoptional(true);
    for (const char* const id : {"B", "A", "B"}) {
        JobXml::Node node;
        node.Setid(QLatin1String(id));
        source.AppendNode(node);
    }

    const ComponentDescriptor descriptor(source);

    QCOMPARE(descriptor.getType(), QStringLiteral("Tuner type"));
    QCOMPARE(descriptor.getComponentName(), QStringLiteral("Tuner name"));
    QVERIFY(descriptor.isOptional());
    QCOMPARE(idsOf(descriptor), QStringList({"B", "A", "B"}));
}

void TstComponentDescriptor::anEmptyComponentGivesADescriptorWithoutAnything()
{
    const ComponentDescriptor descriptor{JobXml::Component()};

    QVERIFY(descriptor.getType().isEmpty());
    QVERIFY(descriptor.getComponentName().isEmpty());
    QVERIFY(!descriptor.isOptional());
    QVERIFY(descriptor.getVtNodes().isEmpty());
    QVERIFY(descriptor.getParameterSetNames().isEmpty());
}

void TstComponentDescriptor::asksTheMapperWithTheNameNotTheType()
{
    JobXml::Component source;
    source.Settype(QStringLiteral("ADemComponent"));
    source.Setname(QStringLiteral("tunersettingscomponent"));

    QCOMPARE(ComponentDescriptor(source).getParameterSetNames(),
             QList<QString>({"AntennaSettings", "TunerSettings"}));

    source.Setname(QStringLiteral("Something else"));
    QVERIFY(ComponentDescriptor(source).getParameterSetNames().isEmpty());
}

void TstComponentDescriptor::parameterSetNamesAreFixedAtConstruction()
{
    JobXml::Component source = component(QString());
    const ComponentDescriptor descriptor(source);
    source.Setname(QStringLiteral("TunerSettingsComponent"));

    QCOMPARE(descriptor.getParameterSetNames(), QList<QString>({"ADemSettings"}));
}

void TstComponentDescriptor::copiesOfADescriptorAreIndependent()
{
    ComponentDescriptor original(component(QStringLiteral("<Node id='A'/>")));
    ComponentDescriptor copy(original);
    ComponentDescriptor assigned{JobXml::Component()};
    assigned = original;

    QCOMPARE(copy.getType(), original.getType());
    QCOMPARE(copy.getComponentName(), original.getComponentName());
    QCOMPARE(copy.isOptional(), true);
    QCOMPARE(copy.getParameterSetNames(), original.getParameterSetNames());
    QCOMPARE(assigned.getType(), original.getType());
    QCOMPARE(assigned.getComponentName(), original.getComponentName());
    QCOMPARE(assigned.isOptional(), true);
    QCOMPARE(assigned.getParameterSetNames(), original.getParameterSetNames());

    copy.getvtNode(QStringLiteral("A")).Setid(QStringLiteral("renamed"));
    assigned.getvtNode(QStringLiteral("new"));
    original.appendNode(JobXml::Node());

    QCOMPARE(idsOf(copy), QStringList({"renamed"}));
    QCOMPARE(idsOf(assigned), QStringList({"A", "new"}));
    QCOMPARE(idsOf(original), QStringList({"A", ""}));
}

void TstComponentDescriptor::theDescriptorOutlivesItsComponent()
{
    auto source = std::make_unique<JobXml::Component>(component(QStringLiteral("<Node id='A'/>")));
    const ComponentDescriptor descriptor(*source);
    source->GetNode()[0].Setid(QStringLiteral("changed"));
    source.reset();

    QCOMPARE(idsOf(descriptor), QStringList({"A"}));
}

void TstComponentDescriptor::getvtNodeGivesTheFirstNodeOfThatId()
{
    ComponentDescriptor descriptor(component(QStringLiteral("<Node id='A'/><Node id='B'/><Node id='B'/>")));

    const JobXml::Node* const node = &descriptor.getvtNode(QStringLiteral("B"));

    QCOMPARE(node, &descriptor.getVtNodes()[1]);
    QCOMPARE(idsOf(descriptor), QStringList({"A", "B", "B"}));
}

void TstComponentDescriptor::getvtNodeComparesExactly()
{
    ComponentDescriptor descriptor(component(QStringLiteral("<Node id='Alpha'/>")));

    descriptor.getvtNode(QStringLiteral("alpha"));
    descriptor.getvtNode(QStringLiteral("Alpha "));
    descriptor.getvtNode(QStringLiteral("Alph"));

    QCOMPARE(idsOf(descriptor), QStringList({"Alpha", "alpha", "Alpha ", "Alph"}));
}

void TstComponentDescriptor::getvtNodeAppendsAMissingNode()
{
    ComponentDescriptor descriptor(component(QStringLiteral("<Node id='A'/>")));

    JobXml::Node& node = descriptor.getvtNode(QStringLiteral("new"));

    QCOMPARE(node.Getid(), QStringLiteral("new"));
    QVERIFY(node.GetValueItem().isEmpty());
    QCOMPARE(idsOf(descriptor), QStringList({"A", "new"}));
    QCOMPARE(&node, &descriptor.getVtNodes()[1]);
    QCOMPARE(&descriptor.getvtNode(QStringLiteral("new")), &node);
    QCOMPARE(idsOf(descriptor), QStringList({"A", "new"}));
}

void TstComponentDescriptor::hasVtNodeNeverAdds()
{
    const ComponentDescriptor descriptor(
        component(QStringLiteral("<Node id='A'/><Node id='B'/><Node id='B'/>")));

    QVERIFY(descriptor.hasVtNode(QStringLiteral("A")));
    QVERIFY(descriptor.hasVtNode(QStringLiteral("B")));
    QVERIFY(!descriptor.hasVtNode(QStringLiteral("b")));
    QVERIFY(!descriptor.hasVtNode(QStringLiteral("C")));
    QVERIFY(!descriptor.hasVtNode(QString()));
    QCOMPARE(idsOf(descriptor), QStringList({"A", "B", "B"}));
}

void TstComponentDescriptor::appendNodeDoesNotLookForDuplicates()
{
    ComponentDescriptor descriptor(component(QStringLiteral("<Node id='A'/>")));
    JobXml::Node node;
    node.Setid(QStringLiteral("A"));

    descriptor.appendNode(node);
    node.Setid(QStringLiteral("changed later"));

    QCOMPARE(idsOf(descriptor), QStringList({"A", "A"}));
}

void TstComponentDescriptor::changesThroughGetvtNodeShowInTheTree()
{
    ComponentDescriptor descriptor(component(QStringLiteral("<Node id='A'/>")));
    JobXml::ValueItem item;
    item.GetValueInt().Setid(QStringLiteral("Count"));
    item.GetValueInt().Setvalue(7);
    descriptor.getvtNode(QStringLiteral("A")).AppendValueItem(item);
    descriptor.getvtNode(QStringLiteral("new")).AppendValueItem(item);

    Node root;
    descriptor.createVTConfig(&root);

    QCOMPARE(JedTest::contentsBelow(root), QStringList({"A/Count: int 7", "new/Count: int 7"}));
}

QTEST_GUILESS_MAIN(TstComponentDescriptor)
#include "tst_componentdescriptor.moc"
