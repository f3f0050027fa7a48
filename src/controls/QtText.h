#pragma once
// The Qt boundary of the system's strings: ANSI bytes inside, QString outside. A character
// outside the code page comes back as "?".

#include <QString>
#include <string>

namespace orvanta {

QString toQString(const std::string& ansi);
std::string fromQString(const QString& text);
// For display only: the system's lines end in CR LF, a Qt label wants LF.
QString toDisplayText(const std::string& ansi);

}  // namespace orvanta
