#include <kit/jobplaces.h>
#include <kit/kitfactory.h>
#include <kit/mimetext.h>
#include <kit/subjobheader.h>

#include <algorithm>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <resourcedescription.h>
#include <values/node.h>
#include <velmogui/iguicomponent.h>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;
using JEDVEPLUGIN::ResourceUse;

namespace {
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PluginKit::KitFactory)
};

// Nodes below nodes, in a job file.
const int MAX_LEVELS = 16;

QString typeOf(const JobXml::Subjob& subjob)
{
    return JobXml::ResourceDescription::TypeToName(subjob.GetResourceDescription().GetType());
}

void hangBelow(PluginKit::SettingNode* parent, std::unique_ptr<PluginKit::SettingNode> child)
{
    child->setParent(parent);
    parent->appendSubsetting(child.get());
    static_cast<void>(child.release());
}

void collectProblems(const ISubSetting& node, QList<Problem>* problems)
{
    *problems += node.problems();
    auto& parent = const_cast<ISubSetting&>(node);
    for (int i = 0; i < parent.childCount(); ++i)
        collectProblems(*parent.child(i), problems);
}

void collectSets(PluginKit::SettingNode* node, QHash<QString, const PluginKit::HeldSet*>* sets)
{
    for (const QString& name : node->type().parameterSets) {
        if (const PluginKit::HeldSet* const set = node->heldSet(name))
            sets->insert(name, set);
    }
    for (int i = 0; i < node->childCount(); ++i)
        collectSets(static_cast<PluginKit::SettingNode*>(node->child(i)), sets);
}

QList<Problem> putSet(const PluginKit::HeldSet& set, JobXml::Subjob* subjob)
{
    return set.values() ? PluginKit::putValues(*set.values(), set.base(), subjob)
                        : PluginKit::putText(set.name(), set.text(), subjob);
}
} // namespace

namespace PluginKit {

KitFactory::KitFactory(const PluginDeclaration& declaration)
    : JEDAbstractSubSettingFactory(declaration.name, declaration.hasDetector, declaration.hasPreClassifier)
    , m_declaration(declaration)
{
    // Tools may want to try another script in its place.
    setProperty("ruleFile", declaration.ruleFile);
    jobTypes = declaration.jobTypes;
    m_childTypes.insert(QString(), {QLatin1String(SUB_JOB)});
    for (const SettingType& type : declaration.types) {
        supportedTypeList.append(type.type);
        m_childTypes.insert(type.type, type.children);
    }
    // What a setting may be depends on the type of the job.
    connect(this, &JEDSubSettingFactory::currentJobTypeChanged, this, [this] {
        for (ISubSetting* setting : qAsConst(subSettings)) {
            static_cast<SubjobNode*>(setting)->showAgain();
            emit stateChanged(setting);
        }
    });
}

KitFactory::~KitFactory()
{
    qDeleteAll(subSettings);
}

ISubSetting* KitFactory::createSubSetting(const QString& type, ISubSetting* parent)
{
    if (needsUserInputOnCreation(type) || !isAppendable(parent, type))
        return nullptr;
    SettingNode* const above = findNode(parent);
    auto node = std::make_unique<SettingNode>(*this, *settingType(type), above);
    {
        const QScopedValueRollback<bool> making(m_isMaking, true);
        node->holdSetsOfReceiver();
    }
    return hangUp(std::move(node), above);
}

ISubSetting* KitFactory::duplicateSubSetting(ISubSetting* setting)
{
    return findNode(setting) ? pasteMimeText(setting->getMimeText(0), setting->parent()) : nullptr;
}

bool KitFactory::deleteSubSetting(ISubSetting* setting)
{
    if (!isDeletable(setting))
        return false;
    SettingNode* const above = findNode(setting->parent());
    if (above)
        above->removeSubSetting(setting);
    else
        subSettings.removeOne(setting);
    delete setting;
    setModified(true);
    if (above)
        emit stateChanged(above);
    return true;
}

ISubSetting* KitFactory::pasteMimeText(const QString& text, ISubSetting* parent)
{
    NodeText read;
    if (!fromMimeText(text, &read) || read.plugin != getName() || !isAppendable(parent, read.type))
        return nullptr;
    SettingNode* const above = findNode(parent);
    std::unique_ptr<SettingNode> node;
    {
        const QScopedValueRollback<bool> making(m_isMaking, true);
        node = makeNode(read, above);
        if (node && !above)
            node->setDisplayName(freeName(node->getDisplayName()));
    }
    return node ? hangUp(std::move(node), above) : nullptr;
}

QString KitFactory::settingDisplayName(const QString& type) const
{
    const SettingType* const found = settingType(type);
    return found ? found->displayName : type;
}

bool KitFactory::claimsSubjob(const JobXml::Subjob& subjob) const
{
    const JEDVE::enJOB_TYPE jobType = getCurrentJobType();
    return m_declaration.resourceTypes.contains(typeOf(subjob)) &&
           (jobType == JEDVE::JOB_TYPE_UNKNOWN || jobTypes.contains(jobType));
}

QString KitFactory::reasonAgainst(const JobXml::Subjob& subjob) const
{
    if (!m_declaration.resourceTypes.contains(typeOf(subjob)))
        return Texts::tr("uses receivers of type %1 only")
            .arg(m_declaration.resourceTypes.join(QLatin1String(", ")));
    return Texts::tr("is not for jobs of this type");
}

ISubSetting* KitFactory::readSubjob(const JobXml::Subjob& subjob, QList<Problem>* problems)
{
    if (!claimsSubjob(subjob)) {
        if (problems)
            problems->append({Problem::SEVERITY_ERROR, SUB_JOB, QString(), reasonAgainst(subjob)});
        return nullptr;
    }
    const QScopedValueRollback<bool> making(m_isMaking, true);
    QHash<QString, QString> sets;
    for (const CarriedSet& carried : carriedSets(subjob))
        sets.insert(QLatin1String(carried.set->name), carried.xml);
    std::unique_ptr<SubjobNode> node = makeSubjob(subjob);
    takeSets(node.get(), &sets, 0);
    if (problems)
        collectProblems(*node, problems);
    node->setReadOnly(isReadOnly(), true);
    subSettings.append(node.get());
    return node.release();
}

bool KitFactory::writeSubjob(ISubSetting* setting, JobXml::Subjob& subjob, QList<Problem>* problems)
{
    if (!subSettings.contains(setting))
        return false;
    auto* const node = static_cast<SubjobNode*>(setting);
    writeHeader(node->header(), &subjob);
    QHash<QString, QString> present;
    for (const CarriedSet& carried : carriedSets(subjob))
        present.insert(QLatin1String(carried.set->name), carried.xml);
    QHash<QString, const HeldSet*> held;
    collectSets(node, &held);
    QList<Problem> lost;
    for (const SettingType& type : m_declaration.types) {
        for (const QString& name : type.parameterSets) {
            const HeldSet* const set = held.value(name);
            if (!set)
                removeParameterSet(name, &subjob);
            else if (set->text() != present.value(name))
                lost += putSet(*set, &subjob);
        }
    }
    if (problems)
        *problems += lost;
    return true;
}

void KitFactory::clear()
{
    const QList<ISubSetting*> former = subSettings;
    subSettings.clear();
    qDeleteAll(former);
    setModified(false);
}

bool KitFactory::isModified() const
{
    return m_isModified;
}

void KitFactory::setModified(bool modified)
{
    if (m_isModified == modified)
        return;
    m_isModified = modified;
    emit modifiedChanged(modified);
}

bool KitFactory::isAppendable(ISubSetting* parent, const QString& type) const
{
    const SettingType* const wanted = settingType(type);
    SettingNode* const above = findNode(parent);
    if (isReadOnly() || !wanted || bool(parent) != bool(above))
        return false;
    if (!above)
        return type == QLatin1String(SUB_JOB);
    return above->type().children.contains(type) && above->typeCount(type) < getMaxCount(type) &&
           hasSetsFor(*wanted, above);
}

bool KitFactory::isDeletable(ISubSetting* setting) const
{
    return !isReadOnly() && findNode(setting) && !setting->isReadOnly();
}

int KitFactory::getMaxCount(const QString& type) const
{
    const SettingType* const found = settingType(type);
    return found && type != QLatin1String(SUB_JOB) ? found->maxCount
                                                   : JEDAbstractSubSettingFactory::getMaxCount(type);
}

const QStringList& KitFactory::supportedTypesOf(const QString& type) const
{
    static const QStringList none;
    const auto found = m_childTypes.constFind(type);
    return found == m_childTypes.constEnd() ? none : *found;
}

QList<ISubSetting*> KitFactory::topLevelSettings() const
{
    return subSettings;
}

QList<ResourceUse> KitFactory::resourceUse() const
{
    QList<ResourceUse> result;
    for (ISubSetting* setting : subSettings)
        result += resourcesOf(static_cast<SubjobNode*>(setting)->header(), setting);
    return result;
}

QString KitFactory::description() const
{
    return m_declaration.description;
}

QPixmap* KitFactory::getSettingIcon(const QString& type) const
{
    QPixmap* const own = JEDAbstractSubSettingFactory::getSettingIcon(type);
    const SettingType* const found = settingType(type);
    return own || !found ? own : JEDAbstractSubSettingFactory::getSettingIcon(found->icon);
}

QString KitFactory::manual() const
{
    return m_declaration.manual.isEmpty() ? QString() : defaultManualPath(m_declaration.manual);
}

void KitFactory::initializeRuleEngine()
{
    const QString path = QDir(rulesDir).filePath(m_declaration.ruleFile);
    m_ruleScript = !rulesDir.isEmpty() && QFileInfo(path).isFile() ? path : QString();
}

void KitFactory::initialize(const QString& path, VelmoGui::GuiComponentCommon* component)
{
    fillResourceDescriptions(m_declaration.resourceTypes, m_declaration.requiredComponents);
    JEDAbstractSubSettingFactory::initialize(path, component);
}

std::shared_ptr<JEDVEPLUGIN::ResourceDescription> KitFactory::receiver(const QString& baseResource,
                                                                       const QString& type) const
{
    return findResourceDescription(baseResource, type);
}

QList<Problem> KitFactory::findProblems(const SettingNode&) const
{
    return {};
}

void KitFactory::tellChange(SettingNode* node)
{
    m_regions.noteChange(node);
    if (m_isMaking)
        return;
    setModified(true);
    emit stateChanged(node);
}

QWidget* KitFactory::makeEditor(const HeldSet& set, QWidget* parent) const
{
    for (VelmoGui::IGuiComponent* component : loadedComponents) {
        const bool isMeant = set.values() && component->GetParameterSets().contains(set.name());
        if (QWidget* const editor =
                isMeant ? component->CreateWidget(set.name(), set.values(), parent) : nullptr)
            return editor;
    }
    return nullptr;
}

SubjobNode* KitFactory::addSubjob(const JobXml::Subjob& header)
{
    std::unique_ptr<SubjobNode> node = makeSubjob(header);
    {
        const QScopedValueRollback<bool> making(m_isMaking, true);
        node->setDisplayName(freeName(node->getDisplayName()));
        node->holdSetsOfReceiver();
        addInitialNodes(node.get());
    }
    return static_cast<SubjobNode*>(hangUp(std::move(node), nullptr));
}

const SettingType* KitFactory::settingType(const QString& type) const
{
    for (const SettingType& candidate : m_declaration.types) {
        if (candidate.type == type)
            return &candidate;
    }
    return nullptr;
}

// Strangers are only compared, never looked into.
SettingNode* KitFactory::findNode(const ISubSetting* setting) const
{
    QList<ISubSetting*> open = subSettings;
    while (setting && !open.isEmpty()) {
        ISubSetting* const node = open.takeLast();
        if (node == setting)
            return static_cast<SettingNode*>(node);
        for (int i = 0; i < node->childCount(); ++i)
            open.append(node->child(i));
    }
    return nullptr;
}

bool KitFactory::hasSetsFor(const SettingType& type, SettingNode* parent) const
{
    const SubjobNode* const subjob = parent->subjob();
    return type.parameterSets.isEmpty() ||
           std::any_of(type.parameterSets.cbegin(), type.parameterSets.cend(),
                       [subjob](const QString& set) { return subjob->values(set); });
}

std::unique_ptr<SubjobNode> KitFactory::makeSubjob(const JobXml::Subjob& subjob)
{
    return std::make_unique<SubjobNode>(
        *this, *settingType(QLatin1String(SUB_JOB)), subjob,
        receiver(subjob.GetResourceDescription().GetBaseResource(), typeOf(subjob)));
}

std::unique_ptr<SettingNode> KitFactory::makeNode(const NodeText& text, SettingNode* parent)
{
    const SettingType* const type = settingType(text.type);
    std::unique_ptr<SettingNode> node;
    if (parent && type) {
        node = std::make_unique<SettingNode>(*this, *type, parent);
    } else if (text.type == QLatin1String(SUB_JOB)) {
        JobXml::Subjob header;
        const NodeText::Set first = text.sets.value(0);
        if (first.name == text.type && header.SetXmlString(first.xml, false) && header.isSet() &&
            claimsSubjob(header))
            node = makeSubjob(header);
    }
    return node && fillNode(text, node.get()) ? std::move(node) : nullptr;
}

bool KitFactory::fillNode(const NodeText& text, SettingNode* node)
{
    for (const NodeText::Set& set : text.sets) {
        if (set.name != QLatin1String(SUB_JOB) && !node->holdSet(set.name, set.xml))
            return false;
    }
    for (const NodeText& child : text.children) {
        if (!node->type().children.contains(child.type) ||
            node->typeCount(child.type) >= getMaxCount(child.type))
            return false;
        std::unique_ptr<SettingNode> made = makeNode(child, node);
        if (!made)
            return false;
        hangBelow(node, std::move(made));
        node->moveChild(
            node->childIndex(node->settingAtTypePosition(child.type, node->typeCount(child.type) - 1)),
            node->childCount());
    }
    return true;
}

// Gives a node and nodes below it the sets of a job file. Whether there were any.
bool KitFactory::takeSets(SettingNode* node, QHash<QString, QString>* sets, int level)
{
    bool hasAny = false;
    for (const QString& name : node->type().parameterSets) {
        if (sets->contains(name))
            hasAny = node->holdSet(name, sets->take(name)) || hasAny;
    }
    for (const QString& childType : node->type().children) {
        const SettingType* const type = settingType(childType);
        if (!type || sets->isEmpty() || level == MAX_LEVELS)
            continue;
        auto child = std::make_unique<SettingNode>(*this, *type, node);
        if (!takeSets(child.get(), sets, level + 1))
            continue;
        hangBelow(node, std::move(child));
        hasAny = true;
    }
    return hasAny;
}

void KitFactory::addInitialNodes(SubjobNode* subjob)
{
    for (const QString& childType : subjob->type().children) {
        const SettingType* const type = settingType(childType);
        const bool isWanted = type && type->isInitial &&
                              std::any_of(type->parameterSets.cbegin(), type->parameterSets.cend(),
                                          [subjob](const QString& set) { return subjob->isMandatory(set); });
        if (!isWanted)
            continue;
        auto child = std::make_unique<SettingNode>(*this, *type, subjob);
        child->holdSetsOfReceiver();
        hangBelow(subjob, std::move(child));
    }
}

ISubSetting* KitFactory::hangUp(std::unique_ptr<SettingNode> node, SettingNode* parent)
{
    SettingNode* const hung = node.get();
    if (parent) {
        hangBelow(parent, std::move(node));
    } else {
        subSettings.append(hung);
        static_cast<void>(node.release());
    }
    tellChange(hung);
    return hung;
}

// Sub-jobs are told apart by their names.
QString KitFactory::freeName(const QString& wanted) const
{
    const auto isTaken = [this](const QString& name) {
        return std::any_of(subSettings.cbegin(), subSettings.cend(),
                           [&name](const ISubSetting* setting) { return setting->getDisplayName() == name; });
    };
    QString name = wanted;
    for (int number = 2; isTaken(name); ++number)
        name = QStringLiteral("%1 %2").arg(wanted, QString::number(number));
    return name;
}

} // namespace PluginKit
