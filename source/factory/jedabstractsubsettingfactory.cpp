#include "jedabstractsubsettingfactory.h"

#include "common/tracing_p.h"
#include "componentdescriptor.h"
#include "jedcommonhelper.h"
#include "resourcedescription.h"
#include "subjobwidget.h"

#include <quilappstartup/cfgcenter.h>
#include <values/tree.h>
#include <velmogui/guicomponentcommon.h>
#include <velmogui/guivaluemapping.h>
#include <velmogui/iguicomponent.h>
#include <zubase/zuexception.h>

#include <QtGui/QPixmap>
#include <QtWidgets/QMessageBox>

#include <algorithm>

namespace JEDVEPLUGIN {

namespace {
const QLatin1String SUB_JOB_TYPE("SubJob");

/// Does a step of initialize(); what it throws is traced.
template <class Step>
void doTraced(Step step)
{
    try {
        step();
    } catch (const ZuException& failure) {
        traceError({TracePoints::ABSTRACT_SUB_SETTING_FACTORY, __LINE__}, failure.GetErrorReason());
    } catch (...) {
        traceError({TracePoints::ABSTRACT_SUB_SETTING_FACTORY, __LINE__},
                   QStringLiteral("JEDAbstractSubSetting::initialize(): Exception thrown"));
    }
}

/// The first component of each component type, in the order in which the types appear.
QList<std::shared_ptr<ComponentDescriptor>>
firstOfEachType(const QList<std::shared_ptr<ResourceDescription>>& resources)
{
    QList<std::shared_ptr<ComponentDescriptor>> result;
    QStringList types;
    for (const auto& resource : resources) {
        for (const auto& descriptor : resource->getComponents()) {
            if (types.contains(descriptor->getType()))
                continue;
            types.append(descriptor->getType());
            result.append(descriptor);
        }
    }
    return result;
}
} // namespace

JEDAbstractSubSettingFactory::JEDAbstractSubSettingFactory(const QString& name, bool detectorVisible,
                                                           bool preClassifierVisible)
    : JEDSubSettingFactory(name)
    , guiComponent(nullptr)
    , m_spare(nullptr)
    , parameterNode(nullptr)
    , m_spareNumber(1)
    , m_detectorVisible(detectorVisible)
    , m_preClassifierVisible(preClassifierVisible)
{
}

JEDAbstractSubSettingFactory::~JEDAbstractSubSettingFactory()
{
    resourceDescriptions.clear();
    qDeleteAll(settingIcons);
    settingIcons.clear();
    unloadComponents();
}

bool JEDAbstractSubSettingFactory::needsUserInputOnCreation(const QString& type) const
{
    return type == SUB_JOB_TYPE;
}

QPixmap* JEDAbstractSubSettingFactory::getSettingIcon(const QString& type) const
{
    return settingIcons.value(type);
}

void JEDAbstractSubSettingFactory::initialize(const QString& path, VelmoGui::GuiComponentCommon* component)
{
    doTraced([this] { loadComponents(); });
    doTraced([this, &path, component] {
        findParameterNode((component ? component->GetPath() : path) + getName() + QLatin1Char('/'));
    });
    guiComponent = component;
    subJobWidget = new SubJobWidget(m_detectorVisible, m_preClassifierVisible, nullptr);
    subJobWidget->hide();
}

void JEDAbstractSubSettingFactory::unloadComponents()
{
    for (VelmoGui::IGuiComponent* component : qAsConst(loadedComponents))
        CfgCenter::Instance()->DestroyDllInstanceByPointer(component);
    loadedComponents.clear();
    if (!subJobWidget)
        return;
    if (subJobWidget->parentWidget())
        subJobWidget->setParent(nullptr);
    delete subJobWidget;
}

int JEDAbstractSubSettingFactory::getSubjobCount() const
{
    return subSettings.size();
}

void JEDAbstractSubSettingFactory::changeReadOnly(bool readOnly)
{
    for (ISubSetting* setting : qAsConst(subSettings))
        setting->setReadOnly(readOnly, true);
}

void JEDAbstractSubSettingFactory::fillResourceDescriptions(const QStringList& resourceTypes,
                                                            const QStringList& requiredComponents)
{
    resourceDescriptions.clear();
    for (const auto& description : ResourceDescription::readAllResourceFiles()) {
        const bool hasAll =
            std::all_of(requiredComponents.cbegin(), requiredComponents.cend(),
                        [&description](const QString& type) { return description->getComponent(type); });
        if (hasAll && resourceTypes.contains(description->getType()))
            resourceDescriptions.append(description);
    }
}

std::shared_ptr<ResourceDescription>
JEDAbstractSubSettingFactory::findResourceDescription(const QString& baseResource, const QString& type)
{
    return std::as_const(*this).findResourceDescription(baseResource, type);
}

const std::shared_ptr<ResourceDescription>
JEDAbstractSubSettingFactory::findResourceDescription(const QString& baseResource, const QString& type) const
{
    for (const auto& description : resourceDescriptions) {
        if (description->getBaseResource() == baseResource && description->getType() == type)
            return description;
    }
    return nullptr;
}

int JEDAbstractSubSettingFactory::countResourceDescription(const QString& baseResource,
                                                           const QString& type) const
{
    return static_cast<int>(std::count_if(
        resourceDescriptions.cbegin(), resourceDescriptions.cend(), [&](const auto& description) {
            return description->getBaseResource() == baseResource && description->getType() == type;
        }));
}

ValueBase* JEDAbstractSubSettingFactory::getParameterSet(const QString& name,
                                                         VelmoGui::GuiComponentCommon* component)
{
    VelmoGui::GuiValueMapping* const mapping = component ? component->GetParameterSet(name) : nullptr;
    return mapping ? mapping->GetValue() : nullptr;
}

void JEDAbstractSubSettingFactory::WarningMessage(const QString& text)
{
    QMessageBox::warning(nullptr, getName(), text, QMessageBox::Ok);
}

bool JEDAbstractSubSettingFactory::QuestionMessage(const QString& text)
{
    return QMessageBox::question(nullptr, getName(), text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

bool JEDAbstractSubSettingFactory::isChildSetting(ISubSetting* ancestor, ISubSetting* candidate)
{
    if (!ancestor || !candidate)
        return false;
    for (int i = 0; i < ancestor->childCount(); ++i) {
        ISubSetting* const child = ancestor->child(i);
        if (child == candidate || isChildSetting(child, candidate))
            return true;
    }
    return false;
}

void JEDAbstractSubSettingFactory::loadComponents()
{
    for (const auto& descriptor : firstOfEachType(resourceDescriptions)) {
        VelmoGui::IGuiComponent* const component =
            JEDCommonHelper::loadComponent(descriptor->getComponentName(), true);
        if (!component)
            continue;
        loadedComponents.append(component);
        const QPixmap* const icon = component->GetIcon();
        if (icon && !settingIcons.contains(descriptor->getType()))
            settingIcons.insert(descriptor->getType(), new QPixmap(*icon));
    }
}

void JEDAbstractSubSettingFactory::findParameterNode(const QString& path)
{
    Tree* const tree = Tree::Instance();
    parameterNode = tree->FindNode(path);
    if (parameterNode)
        return;
    tree->CreatePath(path.mid(1));
    parameterNode = tree->FindNode(path);
    if (!parameterNode)
        throw ZuException(QStringLiteral("unable to create VT node"), QStringLiteral("JEDAbstractSubSetting"),
                          QStringLiteral("initialize"));
}

} // namespace JEDVEPLUGIN
