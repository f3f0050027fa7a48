#pragma once
// The options window: the one preference that is not set where it takes effect, whether the
// editor asks before it saves the project ("saveAlways").

#include <QDialog>
#include <memory>

#include "platform/Host.h"

namespace Ui {
class optionsfrm;
}

namespace orvanta {

class optionsfrm : public QDialog {
    Q_OBJECT
public:
    explicit optionsfrm(Host& host, QWidget* parent = nullptr);
    ~optionsfrm() override;

private slots:
    void Form_Load();
    void Check3_Click();
    void Command1_Click();

private:
    Host& host_;
    std::unique_ptr<Ui::optionsfrm> ui_;
};

}  // namespace orvanta
