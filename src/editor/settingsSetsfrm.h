#pragma once
// The settings sets window: up to five sets, each a name, a type ("REG", "REGFILE", "EXE") and a
// file in the working set's "\settingsset" folder that the installer offers at its end. The
// window edits the process-wide tables and writes "\settingsset\<i>.cfg" for each set in use.

#include <QDialog>
#include <array>
#include <string>

#include "core/Dialogs.h"
#include "platform/Host.h"
#include "project/SettingsSets.h"

class QComboBox;
class QLineEdit;

namespace orvanta {

class settingsSetsfrm : public QDialog {
    Q_OBJECT
public:
    settingsSetsfrm(Host& host, Dialogs& dialogs, std::string workingFolder, SettingsSetTables& tables,
                    QWidget* parent = nullptr);

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
    SettingsSetTables& tables_;
    std::array<Row, kSettingsSetCount> rows_{};
};

}  // namespace orvanta
