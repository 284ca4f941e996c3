#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <session/resourcereport.h>

/// Receivers and their files as text and as JSON.
namespace JedTool {

QString resourcesToText(const QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>>& resources);
QJsonArray resourcesToJson(const QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>>& resources);

/// With all components and values.
QString resourceToText(const JEDVEPLUGIN::ResourceDescription& resource);
QJsonObject resourceToJson(const JEDVEPLUGIN::ResourceDescription& resource);

QString resourceFilesToText(const QList<Session::ResourceFile>& files);
QJsonObject resourceFilesToJson(const QList<Session::ResourceFile>& files);

} // namespace JedTool
