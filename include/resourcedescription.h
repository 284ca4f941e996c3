#pragma once

#include <memory>

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include "jedvepb_export.h"

namespace JEDVEPLUGIN {

class ComponentDescriptor;

/// One kind of receiver, direction finder or other device that a job can use, as a tuner property file
/// describes it.
///
/// Handed around as std::shared_ptr<ResourceDescription>; immutable after reading apart from setType and
/// appendStartupMode. Copies share the component descriptors. GUI thread only; nothing is thrown.
class JEDVEPB_EXPORT ResourceDescription
{
public:
    /// Reads the description from \p xml, the whole text of a tuner property file. isValid tells whether that
    /// succeeded: the text is well-formed, and its version is empty or a number of at least 1.1. Text that
    /// fails leaves everything else null or empty, save for getVersion of a text whose version was read.
    ResourceDescription(const QString& xml);
    ResourceDescription(const ResourceDescription& other);
    ResourceDescription& operator=(const ResourceDescription& other);
    virtual ~ResourceDescription();

    /// The valid descriptions of the installation's template folder ("TemplateFolder" of the configuration
    /// "JobManagement", by default the folder of that name in "VelmoDataDir"), in the order of the file
    /// names.
    ///
    /// Only the first call reads: every regular file of up to 64 MiB, whatever its extension. Each file that
    /// cannot be opened or is not valid is skipped and traced, and one modal warning lists the outdated ones;
    /// it needs a QApplication. Later calls give the same descriptions, also after files were added; a call
    /// made while the warning is open gives what has been read. A missing folder gives an empty list without
    /// a message.
    static QList<std::shared_ptr<ResourceDescription>> readAllResourceFiles();

    QString getName() const;
    /// Resource type, one of the names of JobXml::TunerProperties unless setType replaced it.
    QString getType() const;
    /// Name of the device among those of its type.
    QString getBaseResource() const;
    /// Base resources that can be used together with this one, in file order, without empty entries.
    const QStringList& getConnectableResources() const;
    /// How many of this resource the installation has, as the file says it (not checked).
    int getQuantity() const;
    /// Base resource of the resource that this one is a part of; empty for a root.
    QString getParentBaseResource() const;
    bool isValid() const;
    /// Version text found in the file, empty if it has none, null if the text could not be read.
    QString getVersion() const;
    /// One descriptor per component, in file order.
    const QList<std::shared_ptr<ComponentDescriptor>>& getComponents() const;
    /// Names of the start-up modes, those of the file in its order, then the appended ones.
    const QStringList& getStartupModes() const;

    /// \return the last component of that type (case-sensitive), or an empty pointer
    std::shared_ptr<ComponentDescriptor> getComponent(const QString& componentType) const;
    /// \return the last component of that name (case-sensitive), or an empty pointer
    std::shared_ptr<ComponentDescriptor> getComponentByName(const QString& componentName) const;

    /// Appends \p mode, also if it is there already.
    void appendStartupMode(const QString& mode);
    /// Replaces the resource type; any text is taken.
    void setType(const QString& newType);

private:
    bool createFromStream(const QString& xml);

    QString name;
    QString type;
    QString baseResource;
    QString parentBaseResource;
    QString version;
    bool valid = false;
    QList<std::shared_ptr<ComponentDescriptor>> components; // In file order.
    QHash<QString, std::shared_ptr<ComponentDescriptor>>
        componentsByType; // A later one replaces an earlier one.
    QHash<QString, std::shared_ptr<ComponentDescriptor>> componentsByName; // Likewise.
    QStringList startupModes;
    QStringList connectableResources;
    int quantity = 0; // Resources, as the file says it.
};

} // namespace JEDVEPLUGIN
