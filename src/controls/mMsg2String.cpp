#include "controls/mMsg2String.h"

#include <utility>

namespace orvanta {
namespace {

// -107 and -108 carry the same name on purpose.
constexpr std::pair<int, const char*> kNames[] = {
    {-2, "NM_CLICK"},
    {-3, "NM_DBLCLK"},
    {-4, "NM_RETURN"},
    {-5, "NM_RCLICK"},
    {-6, "NM_RDBLCLK"},
    {-7, "NM_SETFOCUS"},
    {-8, "NM_KILLFOCUS"},
    {-12, "NM_CUSTOMDRAW"},
    {-13, "NM_HOVER"},
    {-100, "LVN_ITEMCHANGING"},
    {-101, "LVN_ITEMCHANGED"},
    {-102, "LVN_INSERTITEM"},
    {-103, "LVN_DELETEITEM"},
    {-104, "LVN_DELETEALLITEMS"},
    {-105, "LVN_BEGINLABELEDIT"},
    {-106, "LVN_ENDLABELEDIT"},
    {-107, "LVN_COLUMNCLICK"},
    {-108, "LVN_COLUMNCLICK"},
    {-109, "LVN_BEGINDRAG"},
    {-110, "LVN_BEGINRDRAG"},
    {-113, "LVN_ODCACHEHINT"},
    {-114, "LVN_ITEMACTIVATE"},
    {-115, "LVN_ODSTATECHANGED"},
    {-121, "LVN_HOTTRACK"},
    {-150, "LVN_GETDISPINFO"},
    {-151, "LVN_SETDISPINFO"},
    {-152, "LVN_ODFINDITEM"},
    {-155, "LVN_KEYDOWN"},
    {-156, "LVN_MARQUEEBEGIN"},
    {-157, "LVN_GETINFOTIP"},
};

}  // namespace

std::string mMsg2String(int code) {
    for (const auto& [known, name] : kNames)
        if (known == code) return name;
    return {};
}

}  // namespace orvanta
