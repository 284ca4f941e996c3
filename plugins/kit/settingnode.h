#pragma once

#include <kit/heldset.h>
#include <kit/plugindeclaration.h>

#include <abstractsubsetting.h>
#include <memory>
#include <QPointer>
#include <vector>

class QTabWidget;
class QWidget;
class ValueBase;

namespace PluginKit {

class KitFactory;
class SubjobNode;
class SubjobRules;

/// A setting of a plug-in on this kit: carries the parameter sets of its type as far as the sub-job's receiver has
/// them, or as far as a job file brought them along. GUI thread only.
class SettingNode : public JEDVEPLUGIN::AbstractSubSetting
{
public:
    /// \param factory  must outlive the node
    /// \param type     must outlive the node
    /// \param parent   the parent link; null for a sub-job only
    SettingNode(KitFactory& factory, const SettingType& type, SettingNode* parent);
    ~SettingNode() override;

    QString getSettingType() const override;
    QString getDisplayName() const override;
    /// False: the name is that of the type.
    bool setDisplayName(const QString& name) override;
    QStringList parameterSetNames() const override;
    QString parameterSetText(const QString& name) const override;
    bool setParameterSetText(const QString& name, const QString& xml) override;
    /// The editors of the parameter sets, made when it is asked for first; owned by the node until it gets a parent
    /// widget.
    QWidget* getWidget() override;
    QList<JEDVEPLUGIN::Problem> problems() const override;
    QString getSettingCategory() const override;
    QPixmap* getPixmap() const override;
    bool isDragEnabled() const override;
    bool isDropEnabled() const override;
    QString getMimeText(int level) const override;
    bool supportsMimeText() const override;
    void moved() override;
    /// Without making a widget for it.
    void setReadOnly(bool readOnly, bool subtree) override;
    /// The display name and what is wrong.
    QString getToolTip() const override;

    /// Sets of its type that the node does not carry and its receiver has.
    QStringList addableSets();
    /// Makes a set with the receiver's defaults, as an operator's change.
    void addSet(const QString& name);
    /// Whether an operator may take a set away: neither the last one, nor one that the receiver always has.
    bool canDropSet(const QString& name);
    /// The page on which a set that the node carries is edited. \param parent  its owner
    QWidget* makePage(const QString& name, QWidget* parent);

    /// The sub-job that the node belongs to, itself for a sub-job.
    virtual SubjobNode* subjob();
    /// Gives the values of a set their defaults, those of the receiver; makes the set where the receiver has it.
    void holdSetsOfReceiver();
    /// Makes the set if need be and gives it a text.
    /// \return false, with nothing changed, for a set that the type does not have and for a text that cannot be read
    bool holdSet(const QString& name, const QString& xml);
    /// Null if the node does not carry the set.
    const HeldSet* heldSet(const QString& name) const;
    /// A value by the name of its set and the path of its field; null if there is none. The value tree's.
    ValueBase* value(const QString& set, const QString& field) const;
    const SettingType& type() const { return m_type; }

protected:
    /// Deletes widget, children and sets. To be called in the destructor of a class that they refer to.
    void dismantle();
    /// The caller's; null if there is nothing to edit.
    virtual QWidget* makeWidget();
    void lockEditors();
    /// Adds a tab for each parameter set.
    void addEditors(QTabWidget* tabs);
    void tellChange();

    KitFactory& m_factory;

private:
    HeldSet* find(const QString& name) const;
    bool dropSet(const QString& name);
    void refreshPages();
    SubjobRules* rules();
    QWidget* makeRegionPage(const QString& set, QWidget* parent);

    const SettingType& m_type;
    std::vector<std::unique_ptr<HeldSet>> m_sets; // In the order of the type.
    QPointer<QWidget> m_widget;
    bool m_makesWidget = true;
};

} // namespace PluginKit
