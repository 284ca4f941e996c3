#include "common/tracing_p.h"
#include "jedcommonhelper.h"

#include <quilappstartup/cfgcenter.h>
#include <velmogui/iguicomponent.h>

namespace JEDVEPLUGIN {

VelmoGui::IGuiComponent* JEDCommonHelper::loadComponent(const QString& name, bool forceNewInstance)
{
    const QString fileName = name + QLatin1String(".dll");
    CfgCenter* center = CfgCenter::Instance();
    try {
        if (!forceNewInstance) {
            IDllInstance* existing = center->GetDllInstanceByFileName(fileName, QString());
            if (auto* component = dynamic_cast<VelmoGui::IGuiComponent*>(existing))
                return component;
        }
        IDllInstance* made = center->CreateDllInstanceByFileName(fileName, QString(), false, false);
        if (auto* component = dynamic_cast<VelmoGui::IGuiComponent*>(made))
            return component;
        center->DestroyDllInstanceByPointer(made); // A component, but none with a GUI.
    } catch (...) {
        // Traced below, whatever it was; the platform has traced its reason.
    }
    traceError(TracePoints::CANNOT_LOAD_COMPONENT,
               QLatin1String("Exception in JEDCommonHelper::loadComponent: ") + name);
    return nullptr;
}

void JEDCommonHelper::unloadComponent(VelmoGui::IGuiComponent* component)
{
    CfgCenter::Instance()->DestroyDllInstanceByPointer(component);
}

} // namespace JEDVEPLUGIN
