#include "ijobeditorplugin.h"

namespace JEDVEPLUGIN {

IJobEditorPlugin::~IJobEditorPlugin() = default;

} // namespace JEDVEPLUGIN
