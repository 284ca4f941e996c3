#pragma once

#include "ruleobject.h"

namespace JEDVEPLUGIN {
class JEDSubSettingFactory;
}

namespace RuleChecking {

/// The objects that a plug-in registers for its rules: a setting on each receiver of the installation that the plug-in
/// takes, with all that can be below it, is made and dropped again. GUI thread only.
/// \param file  if the plug-in has several rule scripts, only the objects of those of this name (folders do not count)
QVector<RuleScope> pluginRuleScopes(JEDVEPLUGIN::JEDSubSettingFactory* factory, const QString& file);

} // namespace RuleChecking
