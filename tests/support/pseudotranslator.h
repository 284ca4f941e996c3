#pragma once

#include <QTranslator>

namespace JedTest {

/// Translates every text into itself with a mark around it and half as much again at its end, as a wordy language
/// would be. What carries no mark has not gone through translation.
class PseudoTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    static bool isTranslated(const QString& text) { return text.contains(QChar(0x27E6)); }

    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        const QString text = QString::fromUtf8(source);
        return QStringLiteral("\u27E6%1%2\u27E7").arg(text, QString(text.size() / 2, QLatin1Char('~')));
    }
};

} // namespace JedTest
