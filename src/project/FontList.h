#pragma once
// "fonts.cfg": one font file name a line; an empty list is an empty file, which reads back as a
// cleared list. "<>" in the first line is still read as "leave the list as it stands".

#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/ListUpdate.h"

namespace orvanta {

std::string fontListText(const std::vector<std::string>& fonts);
bool writeFontList(Host& host, const std::string& path, const std::vector<std::string>& fonts);
ListUpdate readFontList(Host& host, const std::string& path);

}  // namespace orvanta
