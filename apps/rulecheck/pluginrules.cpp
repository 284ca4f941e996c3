#include "pluginrules.h"

#include <session/resourcereport.h>

#include <algorithm>
#include <jedsubsettingfactory.h>
#include <jobxml/job.h>
#include <QFileInfo>
#include <QHash>
#include <resourcedescription.h>
#include <rulemonitor.h>
#include <values/tree.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JEDSubSettingFactory;
using JEDVEPLUGIN::ResourceDescription;
using JEDVEPLUGIN::RuleObjectManager;
using JEDVEPLUGIN::RuleRegistration;

namespace RuleChecking {

namespace {
constexpr int MAX_LEVELS = 4;

// Collects what is registered while it lives.
class Collector : public JEDVEPLUGIN::IRuleMonitor
{
public:
    Collector()
        : m_former(JEDVEPLUGIN::setRuleMonitor(this))
    {
    }
    ~Collector() override { JEDVEPLUGIN::setRuleMonitor(m_former); }

    void managerConstructed(const RuleObjectManager* manager, const QString& file) override
    {
        m_files.insert(manager, QFileInfo(file).fileName());
    }
    void objectRegistered(const RuleRegistration& registration) override
    {
        m_registrations.append(registration);
    }

    // Those of the scripts of that name; all if there is none of it.
    QVector<RuleRegistration> registrations(const QString& fileName) const
    {
        QVector<RuleRegistration> result;
        for (const RuleRegistration& registration : m_registrations) {
            if (m_files.value(registration.manager) == fileName)
                result.append(registration);
        }
        return result.isEmpty() ? m_registrations : result;
    }

private:
    JEDVEPLUGIN::IRuleMonitor* m_former; // Not owned.
    QHash<const RuleObjectManager*, QString> m_files;
    QVector<RuleRegistration> m_registrations;
};

void takeNumbers(const NumericView& value, RuleObject* object)
{
    object->number = value.GetDoubleValue();
    object->min = value.GetDoubleMin();
    object->max = value.GetDoubleMax();
    object->step = value.GetDoubleStep();
}

void takeItems(const ValueSelection& value, RuleObject* object)
{
    for (int i = 0; i < value.GetItemCount(); ++i) {
        const SelectionItem* const item = value.GetItem(i);
        object->items.append({item->GetName(), item->GetValue(), int(item->GetKey())});
    }
    object->current = value.GetCurrentIndex();
}

const struct
{
    const char* className;
    RuleObject::Kind kind;
} KINDS[] = {
    {"JEDVEPLUGIN::ScriptableBoolean", RuleObject::BOOLEAN},
    {"JEDVEPLUGIN::ScriptableNumericFloat", RuleObject::FLOAT},
    {"JEDVEPLUGIN::ScriptableNumericInt", RuleObject::INT},
    {"JEDVEPLUGIN::ScriptableNumericInt64", RuleObject::INT64},
    {"JEDVEPLUGIN::ScriptableSelection", RuleObject::SELECTION},
    {"JEDVEPLUGIN::ScriptableString", RuleObject::STRING},
};

// False for an object of a class of the plug-in's own.
bool toObject(const RuleRegistration& registration, RuleObject* object)
{
    const auto known = std::find_if(std::begin(KINDS), std::end(KINDS), [&registration](const auto& kind) {
        return registration.className == QLatin1String(kind.className);
    });
    if (known == std::end(KINDS))
        return false;
    object->kind = known->kind;
    object->name = registration.name;
    object->ruleFunction = registration.ruleFunction;
    ValueBase* const value = Tree::Instance()->FindByPath(registration.valueTreePath);
    if (const auto* const numbers = dynamic_cast<const NumericView*>(value))
        takeNumbers(*numbers, object);
    else if (const auto* const items = dynamic_cast<const ValueSelection*>(value))
        takeItems(*items, object);
    else if (value)
        object->text = value->GetText();
    if (object->kind == RuleObject::BOOLEAN)
        object->number = object->text == QLatin1String("true") ? 1 : 0;
    return true;
}

void addChildren(JEDSubSettingFactory* factory, ISubSetting* setting, const QString& type, int level)
{
    if (level == MAX_LEVELS)
        return;
    for (const QString& childType : factory->supportedTypesOf(type)) {
        ISubSetting* const child = factory->isAppendable(setting, childType)
                                       ? factory->createSubSetting(childType, setting)
                                       : nullptr;
        if (child)
            addChildren(factory, child, childType, level + 1);
    }
}

// A sub-job on the receiver, in the first type of job in which the plug-in takes it; null if there is none.
ISubSetting* makeSubjob(JEDSubSettingFactory* factory, const ResourceDescription& resource)
{
    JobXml::Subjob subjob;
    subjob.SetName(QStringLiteral("Probe"));
    subjob.GetResourceDescription().SetType(JobXml::ResourceDescription::NameToType(resource.getType()));
    subjob.GetResourceDescription().SetBaseResource(resource.getBaseResource());
    for (const JEDVE::enJOB_TYPE type : factory->supportedJobTypes()) {
        factory->slot_setCurrentJobType(type);
        if (factory->claimsSubjob(subjob))
            return factory->readSubjob(subjob, nullptr);
    }
    return nullptr;
}
} // namespace

QVector<RuleScope> pluginRuleScopes(JEDSubSettingFactory* factory, const QString& file)
{
    QVector<RuleScope> result;
    for (const auto& resource : ResourceDescription::readAllResourceFiles()) {
        Collector collector;
        ISubSetting* const subjob = makeSubjob(factory, *resource);
        if (!subjob)
            continue;
        addChildren(factory, subjob, factory->supportedTypes(true).value(0), 0);
        RuleScope scope;
        scope.name = Session::resourceKey(*resource);
        for (const RuleRegistration& registration : collector.registrations(QFileInfo(file).fileName())) {
            RuleObject object;
            if (toObject(registration, &object))
                scope.objects.append(object);
        }
        if (!scope.objects.isEmpty())
            result.append(scope);
        factory->clear();
    }
    return result;
}

} // namespace RuleChecking
