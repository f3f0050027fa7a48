#include "controls/QtText.h"

#include "platform/AnsiText.h"
#include "platform/Host.h"

namespace orvanta {

QString toQString(const std::string& ansi) {
    return QString::fromStdString(ansiToUtf8(ansi));
}

std::string fromQString(const QString& text) {
    return utf8ToAnsi(text.toStdString());
}

QString toDisplayText(const std::string& ansi) {
    return toQString(ansi).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString toQtPath(Host& host, const std::string& windowsPath) {
    return QString::fromStdString(host.toHostPath(windowsPath));
}

std::string fromQtPath(Host& host, const QString& path) {
    return host.toWindowsPath(path.toStdString());
}

}  // namespace orvanta
