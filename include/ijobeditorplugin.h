#pragma once

#include "jedvepb_export.h"

#include <QtCore/QString>
#include <QtCore/QtPlugin>

namespace JEDVEPLUGIN {

class JEDAbstractSubSettingFactory;

/// Implemented by the plug-in object of a job editor's plug-in: the QObject that carries Q_PLUGIN_METADATA with
/// IJobEditorPlugin_iid and names JEDVEPLUGIN::IJobEditorPlugin in Q_INTERFACES. The metadata file says which
/// interface version the plug-in was built for, {"interfaceVersion": 1}, and may give a "name" and a "description".
///
/// The editor looks at the file and its metadata first. If it accepts them it loads the library, makes the plug-in
/// object and asks it for one factory. A library that was loaded stays so until the process ends. GUI thread only.
class JEDVEPB_EXPORT IJobEditorPlugin
{
public:
    virtual ~IJobEditorPlugin();

    /// Makes the plug-in's factory, not yet initialised: the editor tells it its folders and calls initialize().
    /// May throw; the editor then goes on without the plug-in and says why.
    /// \return the caller's; null if there is nothing that the plug-in could do here
    virtual JEDAbstractSubSettingFactory* createFactory() = 0;
};

} // namespace JEDVEPLUGIN

#define IJobEditorPlugin_iid "jobeditorve.plugin"
Q_DECLARE_INTERFACE(JEDVEPLUGIN::IJobEditorPlugin, IJobEditorPlugin_iid)
