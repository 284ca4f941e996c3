#include "searchfactory.h"

#include <ijobeditorplugin.h>

class SearchPlugin : public QObject, public JEDVEPLUGIN::IJobEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID IJobEditorPlugin_iid FILE "plugin.json")
    Q_INTERFACES(JEDVEPLUGIN::IJobEditorPlugin)
public:
    JEDVEPLUGIN::JEDAbstractSubSettingFactory* createFactory() override { return new SearchFactory; }
};

#include "searchplugin.moc"
