#pragma once

#include <quilappstartup/quilappstartup_export.h>

#include <QString>
#include <QtPlugin>

/// The interface version that a component library declares in its plug-in metadata ({"interfaceVersion": 1}),
/// raised by one whenever a component built before could no longer be used.
#define JED_COMPONENT_INTERFACE_VERSION 1

/// Base of what is made by a component library. Made and released through the CfgCenter. GUI thread only.
class QUILAPPSTARTUP_EXPORT IDllInstance
{
public:
    IDllInstance();
    /// Must not throw.
    virtual ~IDllInstance();

private:
    Q_DISABLE_COPY(IDllInstance)
};

/// Implemented by the plug-in object of a component library: the QObject that carries Q_PLUGIN_METADATA with
/// IDllFactory_iid and names IDllFactory in Q_INTERFACES. GUI thread only.
class QUILAPPSTARTUP_EXPORT IDllFactory
{
public:
    virtual ~IDllFactory();

    /// Makes a new instance. May throw; whoever asked for the instance is then told the reason.
    /// \param instanceName  what the asker calls the instance, usually empty
    /// \return the caller's, null if it cannot be made
    virtual IDllInstance* CreateInstance(const QString& instanceName) = 0;
};

#define IDllFactory_iid "jobeditorve.component"
Q_DECLARE_INTERFACE(IDllFactory, IDllFactory_iid)
