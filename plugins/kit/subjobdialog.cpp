#include <kit/detectorchoice.h>
#include <kit/kitfactory.h>

#include <jedcommonhelper.h>
#include <resourcedescription.h>
#include <resourceselectiondialog.h>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::ResourceSelectionDialog;

namespace {
// What was chosen in the dialog, as a job file says it.
JobXml::Subjob chosenSubjob(ResourceSelectionDialog& dialog, bool hasPreClassifier)
{
    const std::shared_ptr<JEDVEPLUGIN::ResourceDescription> receiver = dialog.getSelectedDescription();
    JobXml::Subjob subjob;
    subjob.SetName(receiver->getName());
    subjob.SetStartupMode(JobXml::Subjob::NameToStartupMode(dialog.getSelectedStartupMode()));
    if (hasPreClassifier)
        subjob.SetPreClassifier(dialog.isPreClassifierSelected());
    JobXml::ResourceDescription& resource = subjob.GetResourceDescription();
    resource.SetType(JobXml::ResourceDescription::NameToType(receiver->getType()));
    resource.SetBaseResource(receiver->getBaseResource());
    resource.SetName(receiver->getName());
    resource.SetRecordLocation(
        JobXml::ResourceDescription::NameToRecordLocation(dialog.getSelectedRecordLocation()));
    PluginKit::setDetector(PluginKit::detectorChoice(dialog, dialog.isDetectorSelected()), &subjob);
    return subjob;
}
} // namespace

namespace PluginKit {

ISubSetting* KitFactory::createSubSettingByUser(const QString& type, ISubSetting* parent, QWidget* window)
{
    if (!needsUserInputOnCreation(type))
        return createSubSetting(type, parent);
    if (!isAppendable(parent, type))
        return nullptr;
    const bool hasDetector =
        m_declaration.hasDetector && JEDCommonHelper::supportsDetector(getCurrentJobType());
    ResourceSelectionDialog dialog(receivers(), hasDetector, m_declaration.isDetectorPreset,
                                   m_declaration.hasPreClassifier,
                                   JEDCommonHelper::allowedStartupModeString(getCurrentJobType()), window);
    if (dialog.exec() != QDialog::Accepted || !dialog.getSelectedDescription())
        return nullptr;
    return addSubjob(chosenSubjob(dialog, m_declaration.hasPreClassifier));
}

} // namespace PluginKit
