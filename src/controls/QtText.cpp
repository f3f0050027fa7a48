#include "controls/QtText.h"

#include "platform/AnsiText.h"

namespace orvanta {

QString toQString(const std::string& ansi) {
    return QString::fromStdString(windows1252ToUtf8(ansi));
}

std::string fromQString(const QString& text) {
    return utf8ToWindows1252(text.toStdString());
}

QString toDisplayText(const std::string& ansi) {
    return toQString(ansi).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace orvanta
