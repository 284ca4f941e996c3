#pragma once

#include <kit/mapregions.h>
#include <kit/plugindeclaration.h>
#include <kit/subjobnode.h>

#include <jedabstractsubsettingfactory.h>

namespace PluginKit {

struct NodeText;

/// The factory of a plug-in that is made by declaration: all operations of JEDSubSettingFactory, for sub-jobs with a
/// tree of setting nodes below them. Derive from it to look for problems of your own. GUI thread only.
///
/// A parameter set is written into the job file when there is a node that carries it. What a sub-job of a job file
/// holds beyond the declared sets stays in it.
///
/// The name of the rule file is the factory's property "ruleFile".
///
/// A sub-job without a dialog: readSubjob() of one that names a receiver, then createSubSetting() of the nodes that
/// it is to have.
class KitFactory : public JEDVEPLUGIN::JEDAbstractSubSettingFactory
{
public:
    explicit KitFactory(const PluginDeclaration& declaration);
    ~KitFactory() override;

    JEDVEPLUGIN::ISubSetting* createSubSetting(const QString& type,
                                               JEDVEPLUGIN::ISubSetting* parent) override;
    JEDVEPLUGIN::ISubSetting* createSubSettingByUser(const QString& type, JEDVEPLUGIN::ISubSetting* parent,
                                                     QWidget* window) override;
    JEDVEPLUGIN::ISubSetting* duplicateSubSetting(JEDVEPLUGIN::ISubSetting* setting) override;
    bool deleteSubSetting(JEDVEPLUGIN::ISubSetting* setting) override;
    JEDVEPLUGIN::ISubSetting* pasteMimeText(const QString& text, JEDVEPLUGIN::ISubSetting* parent) override;
    QString settingDisplayName(const QString& type) const override;
    /// Those on receivers of the declared types, in jobs of the declared types.
    bool claimsSubjob(const JobXml::Subjob& subjob) const override;
    JEDVEPLUGIN::ISubSetting* readSubjob(const JobXml::Subjob& subjob,
                                         QList<JEDVEPLUGIN::Problem>* problems) override;
    bool writeSubjob(JEDVEPLUGIN::ISubSetting* setting, JobXml::Subjob& subjob,
                     QList<JEDVEPLUGIN::Problem>* problems) override;
    void clear() override;
    bool isModified() const override;
    void setModified(bool modified) override;
    bool isAppendable(JEDVEPLUGIN::ISubSetting* parent, const QString& type) const override;
    bool isDeletable(JEDVEPLUGIN::ISubSetting* setting) const override;
    int getMaxCount(const QString& type) const override;
    const QStringList& supportedTypesOf(const QString& type) const override;
    QList<JEDVEPLUGIN::ISubSetting*> topLevelSettings() const override;
    QList<JEDVEPLUGIN::ResourceUse> resourceUse() const override;
    QString description() const override;
    QPixmap* getSettingIcon(const QString& type) const override;
    QString manual() const override;
    /// Whether a declared type carries what frequency-store lists hold: settings of tuner, digital demodulator or
    /// short-time signals.
    bool supportsImportProfile() const override;
    /// For sub-jobs that carry any of these.
    bool canImportProfile(const JEDVEPLUGIN::ISubSetting* setting) override;
    /// Sets the sub-job to the first entry of the list and makes a copy of it for each further one, a thousand entries
    /// at most. Sub-jobs are named by the entries' profiles; where they carry analogue demodulation, they get the
    /// entry's. What does not fit the receiver is a problem of the setting.
    /// \return the copies, which are top-level settings; empty, with nothing changed, for a file that is no such list
    QList<JEDVEPLUGIN::ISubSetting*> importProfile(const QString& file,
                                                   JEDVEPLUGIN::ISubSetting* parent) override;
    /// Sub-jobs that are made from now on have the rules of the declared file.
    void initializeRuleEngine() override;
    /// Looks for the receivers first.
    void initialize(const QString& path, VelmoGui::GuiComponentCommon* component) override;

    const PluginDeclaration& declared() const { return m_declaration; }
    /// The receivers that the plug-in can use.
    const QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>>& receivers() const
    {
        return resourceDescriptions;
    }
    /// The one of that base resource and type, or an empty pointer.
    std::shared_ptr<JEDVEPLUGIN::ResourceDescription> receiver(const QString& baseResource,
                                                               const QString& type) const;
    /// What the plug-in itself finds wrong with a setting; nothing here.
    virtual QList<JEDVEPLUGIN::Problem> findProblems(const SettingNode& node) const;

    // For the nodes.
    /// The plug-in's node in the value tree, null if there is none.
    Node* valueTreeNode() const { return parameterNode; }
    /// Path of the rule script, empty if there is none.
    const QString& ruleScript() const { return m_ruleScript; }
    /// A setting was changed.
    void tellChange(SettingNode* node);
    /// The regions of the settings on the map.
    MapRegions& regions() { return m_regions; }
    /// An editor of a parameter set, made by one of the components; null if none can.
    /// \param parent  owner, may be null
    QWidget* makeEditor(const HeldSet& set, QWidget* parent) const;

protected:
    /// A new sub-job as the dialog makes it: with a name of its own and the initial nodes.
    SubjobNode* addSubjob(const JobXml::Subjob& header);

private:
    const SettingType* settingType(const QString& type) const;
    SettingNode* findNode(const JEDVEPLUGIN::ISubSetting* setting) const;
    bool hasSetsFor(const SettingType& type, SettingNode* parent) const;
    std::unique_ptr<SubjobNode> makeSubjob(const JobXml::Subjob& subjob);
    std::unique_ptr<SettingNode> makeNode(const NodeText& text, SettingNode* parent);
    bool fillNode(const NodeText& text, SettingNode* node);
    bool takeSets(SettingNode* node, QHash<QString, QString>* sets, int level);
    void addInitialNodes(SubjobNode* subjob);
    JEDVEPLUGIN::ISubSetting* hangUp(std::unique_ptr<SettingNode> node, SettingNode* parent);
    QString reasonAgainst(const JobXml::Subjob& subjob) const;
    QString freeName(const QString& wanted) const;

    const PluginDeclaration m_declaration;
    QHash<QString, QStringList> m_childTypes; // By type; empty type: top level.
    QString m_ruleScript;
    MapRegions m_regions{*this};
    bool m_isModified = false;
    bool m_isMaking = false; // Nodes that are not told about yet.
};

} // namespace PluginKit
