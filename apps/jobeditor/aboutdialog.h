#pragma once

#include <QDialog>

namespace Session {
class PluginHost;
}

/// Versions of the program and of what it works with, and where each was loaded from; as text for a bug report, too.
class AboutDialog : public QDialog
{
    Q_OBJECT
public:
    explicit AboutDialog(const Session::PluginHost& host, QWidget* parent = nullptr);

    /// One line for each row: name, version, place.
    QString toText() const;

private:
    class QTreeWidget* m_list;
};
