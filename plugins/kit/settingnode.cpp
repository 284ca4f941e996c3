#include <kit/kitfactory.h>
#include <kit/mimetext.h>
#include <kit/regionbar.h>
#include <kit/settingnode.h>
#include <kit/settingpages.h>
#include <kit/subjobnode.h>

#include <jobxml/settings.h>
#include <QCoreApplication>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWidget>
#include <values/node.h>

#include <algorithm>

using JEDVEPLUGIN::Problem;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PluginKit::SettingNode)
};
} // namespace

namespace PluginKit {

SettingNode::SettingNode(KitFactory& factory, const SettingType& type, SettingNode* parent)
    : AbstractSubSetting(parent)
    , m_factory(factory)
    , m_type(type)
{
}

SettingNode::~SettingNode()
{
    m_factory.regions().forget(this);
    dismantle();
}

QString SettingNode::getSettingType() const
{
    return m_type.type;
}

QString SettingNode::getDisplayName() const
{
    return m_type.displayName;
}

bool SettingNode::setDisplayName(const QString&)
{
    return false;
}

QStringList SettingNode::parameterSetNames() const
{
    QStringList result;
    for (const QString& name : m_type.parameterSets) {
        if (heldSet(name))
            result.append(name);
    }
    return result;
}

QString SettingNode::parameterSetText(const QString& name) const
{
    const HeldSet* const set = heldSet(name);
    return set ? set->text() : QString();
}

bool SettingNode::setParameterSetText(const QString& name, const QString& xml)
{
    if (xml.isEmpty())
        return dropSet(name);
    const SubjobRules::Pause pause(rules());
    if (HeldSet* const set = find(name))
        return set->setText(xml);
    if (!holdSet(name, xml))
        return false;
    refreshPages();
    tellChange();
    return true;
}

QWidget* SettingNode::getWidget()
{
    if (!m_widget && m_makesWidget) {
        m_widget = makeWidget();
        lockEditors();
    }
    return m_widget;
}

QList<Problem> SettingNode::problems() const
{
    QList<Problem> result;
    for (const auto& set : m_sets)
        result += set->problems();
    for (const RegionFields& fields : m_factory.declared().regions)
        result += problemsOfRegion(*this, fields);
    return result + m_factory.findProblems(*this);
}

QString SettingNode::getSettingCategory() const
{
    return m_type.category;
}

QPixmap* SettingNode::getPixmap() const
{
    return m_factory.getSettingIcon(m_type.type);
}

bool SettingNode::isDragEnabled() const
{
    return true;
}

bool SettingNode::isDropEnabled() const
{
    return !isReadOnly() && !m_type.children.isEmpty();
}

QString SettingNode::getMimeText(int level) const
{
    return toMimeText(nodeText(const_cast<SettingNode&>(*this), m_factory.getName()),
                      level * CHARS_PER_INDENT);
}

bool SettingNode::supportsMimeText() const
{
    return true;
}

void SettingNode::moved()
{
    tellChange();
}

void SettingNode::setReadOnly(bool readOnly, bool subtree)
{
    const QScopedValueRollback<bool> existing(m_makesWidget, false);
    AbstractSubSetting::setReadOnly(readOnly, subtree);
    lockEditors();
}

QString SettingNode::getToolTip() const
{
    QStringList lines{getDisplayName()};
    for (const Problem& problem : problems())
        lines.append(problem.text);
    return lines.join(QLatin1Char('\n'));
}

SubjobNode* SettingNode::subjob()
{
    auto* const above = static_cast<SettingNode*>(parent());
    return above ? above->subjob() : nullptr;
}

void SettingNode::holdSetsOfReceiver()
{
    const SubjobNode* const owner = subjob();
    for (const QString& name : m_type.parameterSets) {
        if (owner && owner->values(name))
            holdSet(name, owner->defaultText(name));
    }
}

QStringList SettingNode::addableSets()
{
    const SubjobNode* const owner = subjob();
    QStringList result;
    for (const QString& name : m_type.parameterSets) {
        if (owner && !heldSet(name) && owner->values(name))
            result.append(name);
    }
    return result;
}

void SettingNode::addSet(const QString& name)
{
    if (const SubjobNode* const owner = subjob())
        setParameterSetText(name, owner->defaultText(name));
}

bool SettingNode::canDropSet(const QString& name)
{
    const SubjobNode* const owner = subjob();
    return owner && heldSet(name) && m_sets.size() > 1 && !owner->isMandatory(name);
}

QWidget* SettingNode::makePage(const QString& name, QWidget* parent)
{
    // Made before its content: Tab goes through the widgets in the order in which they were made.
    auto* const area = new QScrollArea(parent);
    QWidget* const page = makeRegionPage(name, area);
    QWidget* const place = page ? page : area;
    QWidget* editor = m_factory.makeEditor(*heldSet(name), place);
    if (!editor)
        editor =
            new QLabel(Texts::tr("There is no editor for these settings. They stay as they are."), place);
    if (page)
        page->layout()->addWidget(editor);
    area->setObjectName(name);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(page ? page : editor);
    area->widget()->setEnabled(!isReadOnly());
    area->setAccessibleName(JobXml::findParameterSet(name)->label());
    return area;
}

bool SettingNode::holdSet(const QString& name, const QString& xml)
{
    const SubjobRules::Pause pause(rules());
    if (HeldSet* const held = find(name))
        return held->setText(xml);
    const SubjobNode* const owner = subjob();
    if (!owner || !m_type.parameterSets.contains(name))
        return false;
    auto made = std::make_unique<HeldSet>(name, owner->values(name), [this] { tellChange(); });
    if (!made->setText(xml))
        return false;
    m_sets.push_back(std::move(made));
    m_factory.regions().noteChange(this);
    return true;
}

const HeldSet* SettingNode::heldSet(const QString& name) const
{
    return find(name);
}

ValueBase* SettingNode::value(const QString& set, const QString& field) const
{
    const HeldSet* const held = heldSet(set);
    return held && held->values() ? held->values()->GetChild(field) : nullptr;
}

// The pages rather than all of the widget: what cannot be edited can still be leafed through and scrolled.
void SettingNode::lockEditors()
{
    auto* const tabs = qobject_cast<QTabWidget*>(m_widget);
    if (!tabs)
        return;
    tabs->setEnabled(true);
    for (int i = 0; i < tabs->count(); ++i) {
        auto* const area = qobject_cast<QScrollArea*>(tabs->widget(i));
        (area ? area->widget() : tabs->widget(i))->setEnabled(!isReadOnly());
    }
    refreshPages();
}

void SettingNode::dismantle()
{
    delete m_widget;
    while (ISubSetting* const last = child(childCount() - 1)) {
        removeSubSetting(last);
        delete last;
    }
    m_sets.clear();
}

QWidget* SettingNode::makeWidget()
{
    if (m_sets.empty())
        return nullptr;
    if (m_type.parameterSets.size() > 1)
        return new SettingPages(*this, nullptr);
    auto tabs = std::make_unique<QTabWidget>();
    addEditors(tabs.get());
    return tabs.release();
}

void SettingNode::addEditors(QTabWidget* tabs)
{
    tabs->setAccessibleName(getDisplayName());
    for (const QString& name : m_type.parameterSets) {
        if (heldSet(name))
            tabs->addTab(makePage(name, tabs), JobXml::findParameterSet(name)->label());
    }
}

QWidget* SettingNode::makeRegionPage(const QString& set, QWidget* parent)
{
    QWidget* page = nullptr;
    for (const RegionFields& fields : m_factory.declared().regions) {
        Region region;
        if (fields.parameterSet != set || !readRegion(*this, fields, &region))
            continue;
        if (!page) {
            page = new QWidget(parent);
            new QVBoxLayout(page);
            page->layout()->setContentsMargins(0, 0, 0, 0);
        }
        page->layout()->addWidget(new RegionBar(m_factory.regions(), *this, fields, page));
    }
    return page;
}

void SettingNode::tellChange()
{
    m_factory.tellChange(this);
}

SubjobRules* SettingNode::rules()
{
    const SubjobNode* const owner = subjob();
    return owner ? owner->rules() : nullptr;
}

bool SettingNode::dropSet(const QString& name)
{
    const auto held =
        std::find_if(m_sets.begin(), m_sets.end(), [&name](const auto& set) { return set->name() == name; });
    if (held == m_sets.end() || m_sets.size() == 1)
        return false;
    m_sets.erase(held);
    refreshPages();
    tellChange();
    return true;
}

void SettingNode::refreshPages()
{
    if (auto* const pages = qobject_cast<SettingPages*>(m_widget))
        pages->refresh();
}

HeldSet* SettingNode::find(const QString& name) const
{
    for (const auto& set : m_sets) {
        if (set->name() == name)
            return set.get();
    }
    return nullptr;
}

} // namespace PluginKit
