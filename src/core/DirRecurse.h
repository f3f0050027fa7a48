#pragma once
// Recursive walks over folders. Each stops early once vars::abortWalks is set. They look at names,
// lengths and the folder bit only, and list with the host's cheaper listing for that.

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Host.h"

namespace orvanta {

// Ends the path with a backslash, turns "/" into "\" and collapses "\\" into "\".
std::string normalizePath(std::string path);

// Adds the full paths of the files of `folder` (not its subfolders) that match one of the
// ";"-separated patterns.
void findFiles(Host& host, std::vector<std::string>& collection, const std::string& folder,
               const std::string& patterns);
// findFiles, then the same for each subfolder, depth first.
void findFilesDeep(Host& host, std::vector<std::string>& collection, const std::string& folder,
                   const std::string& patterns);
// Adds the folder and every folder beneath it.
void listFoldersDeep(Host& host, std::vector<std::string>& collection, const std::string& folder);
// The sum of the lengths of the folder's files, with its subfolders' when asked.
double folderSize(Host& host, const std::string& folder, bool withSubfolders);

// What findFilesDeep with "*.*", listFoldersDeep and folderSize with subfolders give, in their
// orders, from one listing of each folder: for callers that need more than one of them.
struct FolderTree {
    std::vector<std::string> files;
    std::vector<std::string> folders;
    double size = 0;
};
FolderTree walkFolderTree(Host& host, const std::string& folder);
// Free bytes of a drive as the disk reports them: sectors per cluster times free clusters in
// 32 bits (an overflow is a run-time error), times bytes per sector. 0 when the drive is unknown.
double diskFreeReport(Host& host, const std::string& driveLetter);

}  // namespace orvanta
