#pragma once

#include "ruleobjectmanager.h"
#include "scriptableboolean.h"
#include "scriptablenumericfloat.h"
#include "scriptablenumericint.h"
#include "scriptablenumericint64.h"
#include "scriptableselection.h"
#include "scriptablestring.h"

#include <values/tree.h>

#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <utility>

namespace JedTest {

/// Values in a node of the value tree that is only this object's, and script files beside them.
class RuleBench
{
public:
    RuleBench()
        : m_node(Tree::Instance()->CreatePath(nextName("/rules/bench")))
    {
    }
    ~RuleBench() { delete m_node; }

    /// A value of type T under the id \p name; the node owns it.
    template <class T>
    T* value(const QString& name)
    {
        T* const made = new T;
        made->SetName(name);
        m_node->AddChild(made);
        return made;
    }

    /// The path of a new script file.
    QString script(const QByteArray& text)
    {
        const QString path = m_dir.filePath(nextName("rule") + ".js");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("no script file");
        return path;
    }

    Node* node() const { return m_node; }
    QString path(const QString& name) const { return m_node->GetPathName() + '/' + name; }

private:
    static QString nextName(const QString& prefix)
    {
        static int count = 0;
        return prefix + QString::number(++count);
    }

    QTemporaryDir m_dir;
    Node* m_node; // Owned by the tree.
};

/// A manager with a script, and a text "Log" that scripts write to.
class RuleSetup
{
public:
    explicit RuleSetup(const QByteArray& script, const QString& file = QString())
        : m_manager(std::make_unique<JEDVEPLUGIN::RuleObjectManager>(file.isEmpty() ? m_bench.script(script)
                                                                                    : file))
    {
        m_log = m_bench.value<ValueString>("Log");
        m_manager->RegisterScriptableObject(new JEDVEPLUGIN::ScriptableString(m_log, QString(), nullptr));
    }

    /// A value of the object's type, its object registered under \p name; rule function \p rule. Without one, changes
    /// of the value do not even have the script evaluated.
    template <class Object, class T>
    T* add(const QString& name, const QString& rule = QString())
    {
        T* const value = m_bench.value<T>(name);
        m_manager->RegisterScriptableObject(
            new Object(value, rule, rule.isEmpty() ? nullptr : m_manager.get()));
        return value;
    }
    NumericInt* addInt(const QString& name, const QString& rule = QString())
    {
        return add<JEDVEPLUGIN::ScriptableNumericInt, NumericInt>(name, rule);
    }

    /// What the scripts have written since the last call.
    QString takeLog()
    {
        const QString text = m_log->GetValue();
        m_log->SetValue(QString());
        return text;
    }
    /// Runs a function; what it wrote.
    QString run(const QString& function)
    {
        takeLog();
        m_manager->ReloadScriptAndRun(function);
        return takeLog();
    }

    JEDVEPLUGIN::RuleObjectManager* operator->() const { return m_manager.get(); }

    RuleBench m_bench;
    std::unique_ptr<JEDVEPLUGIN::RuleObjectManager> m_manager;
    ValueString* m_log = nullptr; // Owned by the value tree.
};

} // namespace JedTest
