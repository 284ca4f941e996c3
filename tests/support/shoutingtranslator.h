#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace JedTest {

/// While it lives, every translated text is its context and itself in capitals: "context|TEXT".
class ShoutingTranslator : public QTranslator
{
public:
    ShoutingTranslator() { QCoreApplication::installTranslator(this); }
    ~ShoutingTranslator() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QString::fromUtf8(context) + '|' + QString::fromUtf8(text).toUpper();
    }
    bool isEmpty() const override { return false; }
};

} // namespace JedTest
