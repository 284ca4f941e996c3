#pragma once

#include <QDialog>

namespace Session {
class PluginHost;
}

/// Every file of the plug-in folders, with what it is and why it is used or not.
class PluginPage : public QDialog
{
    Q_OBJECT
public:
    explicit PluginPage(const Session::PluginHost& host, QWidget* parent = nullptr);
};
