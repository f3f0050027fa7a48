#pragma once
// The Qt boundary of the system's strings: ANSI bytes in the host's code page inside, QString
// outside. A character outside the code page comes back as "?". Paths go through the host's
// path conversion instead, which also maps drives.

#include <QString>
#include <string>

namespace orvanta {

QString toQString(const std::string& ansi);
std::string fromQString(const QString& text);
// For display only: the system's lines end in CR LF, a Qt label wants LF.
QString toDisplayText(const std::string& ansi);

class Host;
// A Windows path of the system as the host's own path for a Qt dialog, and back.
QString toQtPath(Host& host, const std::string& windowsPath);
std::string fromQtPath(Host& host, const QString& path);

}  // namespace orvanta
