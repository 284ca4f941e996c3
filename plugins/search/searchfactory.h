#pragma once

#include <kit/kitfactory.h>

/// The plug-in for search jobs: sub-jobs that scan frequency ranges, with spectrum, tuner and bearings.
class SearchFactory : public PluginKit::KitFactory
{
public:
    SearchFactory();

    QList<JEDVEPLUGIN::Problem> findProblems(const PluginKit::SettingNode& node) const override;
};
