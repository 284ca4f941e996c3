#pragma once

#include "jedsubsettingfactory.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>

#include <memory>

class Node;
class ValueBase;

namespace VelmoGui {
class GuiComponentCommon;
class IGuiComponent;
} // namespace VelmoGui

namespace JEDVEPLUGIN {

class ResourceDescription;
class SubJobWidget;

/// Base of every plug-in's factory: knows the receivers that the plug-in can use, loads the GUI components that
/// they need, and keeps the icons, the plug-in's node in the value tree, the widget for sub-jobs and the list of
/// sub-jobs. GUI thread only; nothing is thrown.
///
/// Beyond the life of a factory as JEDSubSettingFactory tells it: the plug-in calls fillResourceDescriptions(),
/// as a rule in its constructor, and the editor initialize() afterwards. What the plug-in must still do itself
/// is to make and delete the entries of subSettings.
class JEDVEPB_EXPORT JEDAbstractSubSettingFactory : public JEDSubSettingFactory
{
    Q_OBJECT
public:
    /// \param name                 as for JEDSubSettingFactory
    /// \param detectorVisible      handed to the SubJobWidget: whether it has the row "Detector"
    /// \param preClassifierVisible handed to the SubJobWidget: whether it has the row "Preclassifier"
    JEDAbstractSubSettingFactory(const QString& name, bool detectorVisible, bool preClassifierVisible);
    /// Unloads the components. The entries of subSettings are not deleted: that is the plug-in's, in clear() or
    /// in its own destructor.
    ~JEDAbstractSubSettingFactory() override;

    /// True for "SubJob", exactly so written.
    bool needsUserInputOnCreation(const QString& type) const override;
    /// The icon of a component type of the receivers, or one that the plug-in has put into settingIcons; null
    /// if there is none. The factory's.
    QPixmap* getSettingIcon(const QString& type) const override;

    /// To be called once, by the editor, after fillResourceDescriptions(). Loads one component for each
    /// component type of the receivers, named by the first receiver that has the type; one that cannot be
    /// loaded is left out. Finds or makes the plug-in's node in the value tree and makes the hidden sub-job
    /// widget, which needs a QApplication.
    ///
    /// Faults are traced and nothing else: where no node could be made, parameterNode stays null.
    /// \param path       value-tree path below which the plug-in's node lies, beginning and ending with "/";
    ///                   the node is called getName()
    /// \param component  its path is taken instead of \p path; may be null; must outlive the factory
    virtual void initialize(const QString& path, VelmoGui::GuiComponentCommon* component);
    /// Releases the components and deletes the sub-job widget. Their icons stay.
    void unloadComponents();
    int getSubjobCount() const;

protected:
    /// Passes the flag to each of subSettings and all nodes below.
    void changeReadOnly(bool readOnly) override;

    /// Fills resourceDescriptions with those of the installation's receivers that the plug-in can use, in
    /// their order; what was there before is dropped. As ResourceDescription::readAllResourceFiles(), it may
    /// show a warning.
    /// \param resourceTypes       types of resources, to the letter
    /// \param requiredComponents  component types that a receiver must have, all of them; may be empty
    void fillResourceDescriptions(const QStringList& resourceTypes, const QStringList& requiredComponents);
    /// The first of resourceDescriptions that has this base resource and type, or an empty pointer.
    std::shared_ptr<ResourceDescription> findResourceDescription(const QString& baseResource,
                                                                 const QString& type);
    /// The same.
    const std::shared_ptr<ResourceDescription> findResourceDescription(const QString& baseResource,
                                                                       const QString& type) const;
    /// How many of resourceDescriptions have this base resource and type.
    int countResourceDescription(const QString& baseResource, const QString& type) const;

    /// The value of a component's parameter set; not the caller's.
    /// \param component  may be null
    /// \return null if the component has no set of that name
    ValueBase* getParameterSet(const QString& name, VelmoGui::GuiComponentCommon* component);
    /// A modal warning under the plug-in's name, to be acknowledged.
    void WarningMessage(const QString& text);
    /// A modal question under the plug-in's name.
    /// \return true only for the answer Yes, not if the box is just closed
    bool QuestionMessage(const QString& text);
    /// Whether a node lies anywhere below another one. A node does not lie below itself.
    bool isChildSetting(ISubSetting* ancestor, ISubSetting* candidate);

    VelmoGui::GuiComponentCommon* guiComponent; ///< Null before initialize(). Not owned.
    void* m_spare;                              ///< Null. Keeps its place in the layout.
    Node* parameterNode;                        ///< Null before initialize() and if it failed. Not owned.
    QList<ISubSetting*> subSettings;            ///< The top-level settings. The plug-in's.
    int m_spareNumber;                          ///< 1. Keeps its place in the layout.
    QPointer<SubJobWidget> subJobWidget;        ///< Null before initialize(). Owned unless it got a parent.
    QList<std::shared_ptr<ResourceDescription>> resourceDescriptions; ///< The receivers that can be used.
    QHash<QString, QPixmap*> settingIcons;            ///< By setting or component type. Owned.
    QList<VelmoGui::IGuiComponent*> loadedComponents; ///< Released through the CfgCenter.

private:
    void loadComponents();
    void findParameterNode(const QString& path);

    bool m_detectorVisible;
    bool m_preClassifierVisible;
};

} // namespace JEDVEPLUGIN
