#pragma once

#include <QString>
#include <QVector>

namespace JEDVEPLUGIN {
class ISubSetting;
}

namespace PluginKit {

/// A setting with its subtree, as drag and drop, copy and undo hand it around.
struct NodeText
{
    struct Set
    {
        QString name;
        QString xml;
    };

    QString plugin; ///< name of the plug-in that it belongs to
    QString type;
    QVector<Set> sets; ///< as ISubSetting::parameterSetNames() and parameterSetText() give them
    QVector<NodeText> children;
};

/// What a node and all nodes below it hold.
NodeText nodeText(JEDVEPLUGIN::ISubSetting& node, const QString& plugin);

/// The text in JSON, each line after \p indent blanks.
QString toMimeText(const NodeText& node, int indent);
/// Reads such a text, which may come from anywhere: at most 64 Mi characters and 64 levels.
/// \return false, with \p node as it was, if it is no such text
bool fromMimeText(const QString& text, NodeText* node);

} // namespace PluginKit
