#pragma once
// The settings sets window: up to five sets, each a name, a type ("REG", "REGFILE", "EXE") and a
// file in the working set's "\settingsset" folder that the installer offers at its end. The
// window edits the process-wide tables and writes "\settingsset\<i>.cfg" for each set in use.

#include <QDialog>
#include <array>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "project/SettingsSetFile.h"

class QComboBox;
class QLineEdit;

namespace orvanta {

using SettingsSetColumn = std::array<std::string, kSettingsSetCount>;

class settingsSetsfrm : public QDialog {
    Q_OBJECT
public:
    settingsSetsfrm(Host& host, Dialogs& dialogs, std::string workingFolder, SettingsSetColumn& names,
                    SettingsSetColumn& types, QWidget* parent = nullptr);

    // The file of set i, "<i>.cfg": its member file, then the set's name and type.
    static std::string setFileText(const std::string& member, const std::string& name,
                                   const std::string& type);

public slots:
    void choose(int set);
    void clear(int set);
    void Command1_Click();  // OK: keep the sets and write their files

private:
    struct Row {
        QLineEdit* name = nullptr;
        QComboBox* type = nullptr;
        QLineEdit* member = nullptr;
    };
    void buildRows();
    void readRow(int set);
    void writeRow(int set);

    Host& host_;
    Dialogs& dialogs_;
    std::string workingFolder_;
    SettingsSetColumn& names_;
    SettingsSetColumn& types_;
    std::array<Row, kSettingsSetCount> rows_{};
};

}  // namespace orvanta
