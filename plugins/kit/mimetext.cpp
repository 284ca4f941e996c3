#include <kit/mimetext.h>

#include <isubsetting.h>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
const QLatin1String PLUGIN("plugin");
const QLatin1String TYPE("type");
const QLatin1String SETS("parameterSets");
const QLatin1String CHILDREN("children");
const QLatin1String NAME("name");
const QLatin1String XML("xml");

const int MAX_SIZE = 64 * 1024 * 1024;
const int MAX_LEVELS = 64;

QJsonObject toJson(const PluginKit::NodeText& node)
{
    QJsonArray sets;
    for (const PluginKit::NodeText::Set& set : node.sets)
        sets.append(QJsonObject{{NAME, set.name}, {XML, set.xml}});
    QJsonArray children;
    for (const PluginKit::NodeText& child : node.children)
        children.append(toJson(child));
    QJsonObject result{{TYPE, node.type}, {SETS, sets}, {CHILDREN, children}};
    if (!node.plugin.isEmpty())
        result.insert(PLUGIN, node.plugin);
    return result;
}

bool fromJson(const QJsonObject& object, int level, PluginKit::NodeText* node)
{
    if (level > MAX_LEVELS || !object.value(TYPE).isString())
        return false;
    node->plugin = object.value(PLUGIN).toString();
    node->type = object.value(TYPE).toString();
    for (const QJsonValue& value : object.value(SETS).toArray()) {
        const QJsonObject set = value.toObject();
        if (!set.value(NAME).isString() || !set.value(XML).isString())
            return false;
        node->sets.append({set.value(NAME).toString(), set.value(XML).toString()});
    }
    for (const QJsonValue& value : object.value(CHILDREN).toArray()) {
        PluginKit::NodeText child;
        if (!fromJson(value.toObject(), level + 1, &child))
            return false;
        node->children.append(child);
    }
    return true;
}
} // namespace

namespace PluginKit {

NodeText nodeText(JEDVEPLUGIN::ISubSetting& node, const QString& plugin)
{
    NodeText result;
    result.plugin = plugin;
    result.type = node.getSettingType();
    for (const QString& name : node.parameterSetNames())
        result.sets.append({name, node.parameterSetText(name)});
    for (int i = 0; i < node.childCount(); ++i)
        result.children.append(nodeText(*node.child(i), QString()));
    return result;
}

QString toMimeText(const NodeText& node, int indent)
{
    const QString margin(indent, QLatin1Char(' '));
    const QString text = QString::fromUtf8(QJsonDocument(toJson(node)).toJson(QJsonDocument::Indented));
    QString result;
    for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        result += margin + line + QLatin1Char('\n');
    return result;
}

bool fromMimeText(const QString& text, NodeText* node)
{
    if (text.size() > MAX_SIZE)
        return false;
    NodeText read;
    if (!fromJson(QJsonDocument::fromJson(text.toUtf8()).object(), 1, &read))
        return false;
    *node = read;
    return true;
}

} // namespace PluginKit
