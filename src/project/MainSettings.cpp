#include "project/MainSettings.h"

#include <array>
#include <variant>

#include "project/LineFile.h"
#include "project/NumberText.h"

namespace orvanta {

namespace {

using TextField = std::optional<std::string> MainSettings::*;
using NumberField = std::optional<int> MainSettings::*;

enum class TextRead { Take, TakeIfNotEmpty, Over };
enum class NumberRead { IntegerPart, Direct, Over };

struct TextLine {
    TextField field;
    TextRead read;
};
struct NumberLine {
    NumberField field;
    NumberRead read;
};
struct ZeroLine {};
struct UninstallLine {};
struct UpdateModeLine {};

using LineRule = std::variant<TextLine, NumberLine, ZeroLine, UninstallLine, UpdateModeLine>;

// The 49 lines in file order.
const std::array<LineRule, kMainSettingsLines> kLines = {{
    TextLine{&MainSettings::appName, TextRead::Take},
    TextLine{&MainSettings::appAuthor, TextRead::Take},
    NumberLine{&MainSettings::startMenuShortcut, NumberRead::IntegerPart},
    NumberLine{&MainSettings::desktopShortcut, NumberRead::IntegerPart},
    TextLine{&MainSettings::fullLicenseSlot, TextRead::Over},
    TextLine{&MainSettings::shortcutTooltip, TextRead::TakeIfNotEmpty},
    NumberLine{&MainSettings::startupOption, NumberRead::IntegerPart},
    NumberLine{&MainSettings::startupChecked, NumberRead::IntegerPart},
    TextLine{&MainSettings::website, TextRead::Take},
    TextLine{&MainSettings::appSize, TextRead::Take},
    NumberLine{&MainSettings::quickLaunchShortcut, NumberRead::IntegerPart},
    NumberLine{&MainSettings::quickLaunchChecked, NumberRead::IntegerPart},
    TextLine{&MainSettings::mainExecutable, TextRead::Take},
    NumberLine{&MainSettings::noRepair, NumberRead::Direct},
    NumberLine{&MainSettings::noModify, NumberRead::Direct},
    TextLine{&MainSettings::appVersion, TextRead::Take},
    NumberLine{&MainSettings::rollEffect, NumberRead::Direct},
    TextLine{&MainSettings::installPath, TextRead::Take},
    TextLine{&MainSettings::minWindowsVersion, TextRead::Take},
    NumberLine{&MainSettings::authorFolder, NumberRead::Direct},
    NumberLine{&MainSettings::instantInstall, NumberRead::Direct},
    TextLine{&MainSettings::licenseTitle, TextRead::Take},
    // The loader leaves the caption at the window's default; the simulator reads this line itself.
    TextLine{&MainSettings::licenseButtonCaption, TextRead::Over},
    UninstallLine{},
    NumberLine{&MainSettings::cleanAll, NumberRead::Direct},
    TextLine{&MainSettings::anyFile, TextRead::Take},
    NumberLine{&MainSettings::lockInstallPath, NumberRead::IntegerPart},
    NumberLine{&MainSettings::desktopChecked, NumberRead::IntegerPart},
    NumberLine{&MainSettings::startMenuChecked, NumberRead::IntegerPart},
    TextLine{&MainSettings::startupArguments, TextRead::TakeIfNotEmpty},
    NumberLine{&MainSettings::startupAllUsers, NumberRead::IntegerPart},
    TextLine{&MainSettings::supportLink, TextRead::TakeIfNotEmpty},
    TextLine{&MainSettings::helpLink, TextRead::TakeIfNotEmpty},
    TextLine{&MainSettings::updateInfoLink, TextRead::TakeIfNotEmpty},
    TextLine{&MainSettings::finalPackageName, TextRead::Take},
    TextLine{&MainSettings::shortcutArguments, TextRead::TakeIfNotEmpty},
    NumberLine{&MainSettings::startupRequired, NumberRead::Direct},
    NumberLine{&MainSettings::appIconOnRootFolder, NumberRead::Direct},
    NumberLine{&MainSettings::noUninstaller, NumberRead::Direct},
    // The edition's name belongs to the switch of working sets, not to the file.
    TextLine{&MainSettings::editionName, TextRead::Over},
    NumberLine{&MainSettings::showEditionName, NumberRead::Direct},
    NumberLine{&MainSettings::justRunMode, NumberRead::Direct},
    ZeroLine{},
    UpdateModeLine{},
    NumberLine{&MainSettings::updateIgnoreLicense, NumberRead::Direct},
    NumberLine{&MainSettings::updateRunApp, NumberRead::Direct},
    NumberLine{&MainSettings::updateSilent, NumberRead::Direct},
    NumberLine{&MainSettings::createRestorePoint, NumberRead::Direct},
    ZeroLine{},
}};

const char* uninstallWord(UninstallDefault value) {
    switch (value) {
        case UninstallDefault::DeleteAllSettings:
            return "FULLDEL";
        case UninstallDefault::DeleteRegistryOnly:
            return "REGDEL";
        case UninstallDefault::None:
            return "NONE";
    }
    return "";
}

const char* updateModeWord(UpdateInstallMode value) {
    return value == UpdateInstallMode::Instant ? "i" : "s";
}

std::optional<UninstallDefault> uninstallOf(const std::string& line) {
    if (line == "FULLDEL") return UninstallDefault::DeleteAllSettings;
    if (line == "REGDEL") return UninstallDefault::DeleteRegistryOnly;
    if (line == "NONE") return UninstallDefault::None;
    return std::nullopt;
}

std::optional<UpdateInstallMode> updateModeOf(const std::string& line) {
    if (line == "s") return UpdateInstallMode::Standard;
    if (line == "i") return UpdateInstallMode::Instant;
    return std::nullopt;
}

struct LineWriter {
    const MainSettings& settings;
    std::string& out;

    void operator()(const TextLine& rule) const { appendLine(out, (settings.*rule.field).value_or("")); }
    void operator()(const NumberLine& rule) const {
        appendLine(out, numberLine((settings.*rule.field).value_or(0)));
    }
    void operator()(ZeroLine) const { appendLine(out, numberLine(0)); }
    void operator()(UninstallLine) const {
        if (settings.uninstallDefault) appendLine(out, uninstallWord(*settings.uninstallDefault));
    }
    void operator()(UpdateModeLine) const {
        if (settings.updateInstallMode) appendLine(out, updateModeWord(*settings.updateInstallMode));
    }
};

// Each visit gives what went wrong with the line, or nothing.
struct LineReader {
    MainSettings& settings;
    const std::string& line;

    std::optional<std::string> operator()(const TextLine& rule) const {
        if (rule.read == TextRead::Over || (rule.read == TextRead::TakeIfNotEmpty && line.empty()))
            return std::nullopt;
        settings.*rule.field = line;
        return std::nullopt;
    }
    std::optional<std::string> operator()(const NumberLine& rule) const {
        if (rule.read == NumberRead::Over) return std::nullopt;
        const auto value = rule.read == NumberRead::IntegerPart ? integerPartOf(line) : convertedNumber(line);
        if (!value) return quoted() + " is no number; the field keeps its value";
        settings.*rule.field = value;
        return std::nullopt;
    }
    std::optional<std::string> operator()(ZeroLine) const { return std::nullopt; }
    std::optional<std::string> operator()(UninstallLine) const {
        settings.uninstallDefault = uninstallOf(line);
        if (settings.uninstallDefault) return std::nullopt;
        return quoted() + " is none of FULLDEL, REGDEL and NONE; the option stays as it was";
    }
    std::optional<std::string> operator()(UpdateModeLine) const {
        settings.updateInstallMode = updateModeOf(line);
        if (settings.updateInstallMode) return std::nullopt;
        return quoted() + " is neither s nor i; the option stays as it was";
    }

    std::string quoted() const { return "\"" + line + "\""; }
};

void note(DamagedLines* damaged, std::size_t line, std::string text) {
    if (damaged) damaged->push_back({line, std::move(text)});
}

}  // namespace

std::string mainSettingsText(const MainSettings& settings) {
    std::string text;
    for (const auto& rule : kLines) std::visit(LineWriter{settings, text}, rule);
    return text;
}

bool writeMainSettings(Host& host, const std::string& path, const MainSettings& settings) {
    return host.writeFileAtomic(path, mainSettingsText(settings));
}

std::optional<MainSettings> readMainSettings(Host& host, const std::string& path, DamagedLines* damaged) {
    auto lines = readLines(host, path, kMainSettingsLines);
    if (!lines) return std::nullopt;
    MainSettings settings;
    for (std::size_t i = 0; i < lines->size(); ++i) {
        if (removeControlBytes((*lines)[i])) note(damaged, i + 1, kControlBytesLeftOut);
        if (auto trouble = std::visit(LineReader{settings, (*lines)[i]}, kLines[i]))
            note(damaged, i + 1, std::move(*trouble));
    }
    if (lines->size() < kMainSettingsLines)
        note(damaged, lines->size() + 1,
             "missing, with every line after it up to " + std::to_string(kMainSettingsLines) +
                 "; their fields keep their values");
    return settings;
}

bool mainExecutableClearsCheck(const std::string& mainExecutable) {
    return mainExecutable == ".exe" || mainExecutable.find_first_not_of(' ') == std::string::npos;
}

std::string finalPackageFileOf(const std::string& finalPackageName, const std::string& appVersion) {
    static const std::string token = "%version";
    std::string result;
    std::size_t start = 0;
    for (auto found = finalPackageName.find(token); found != std::string::npos;
         found = finalPackageName.find(token, start)) {
        result.append(finalPackageName, start, found - start);
        result += appVersion;
        start = found + token.size();
    }
    result.append(finalPackageName, start);
    return result;
}

}  // namespace orvanta
