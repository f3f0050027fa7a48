#include "simulator/WizardScreens.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QTimer>
#include <algorithm>

#include "simulator/WizardPanel.h"
#include "simulator/installPackages.h"
#include "simulator/installPreview.h"

namespace orvanta {

namespace {

QString shownText(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) return box->text();
    if (const auto* bar = qobject_cast<const QProgressBar*>(&widget)) return QString::number(bar->value());
    if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
        QStringList rows;
        for (int row = 0; row < list->count(); ++row)
            rows << (list->item(row)->checkState() == Qt::Checked ? QStringLiteral("[x] ")
                                                                  : QStringLiteral("[ ] ")) +
                        list->item(row)->text();
        return rows.join(QLatin1Char('\n'));
    }
    return {};
}

// The controls a screen lists: the wizard's by the names the wizard gives them ("mainzone(0)"),
// the package chooser's by their own.
using NamedControls = std::vector<std::pair<QString, QWidget*>>;

// A panel under the one on top is hidden by it, with all it holds.
NamedControls wizardControls(installPreview& window) {
    std::vector<QWidget*> covered;
    for (int panel = 3; panel >= 0; --panel) {
        QWidget* zone = window.mainzone[static_cast<std::size_t>(panel)];
        if (!zone->isVisible()) continue;
        for (int below = panel - 1; below >= 0; --below)
            covered.push_back(window.mainzone[static_cast<std::size_t>(below)]);
        break;
    }
    const auto hidden = [&](const QWidget* widget) {
        return std::any_of(covered.begin(), covered.end(),
                           [&](const QWidget* zone) { return zone == widget || zone->isAncestorOf(widget); });
    };
    NamedControls named;
    for (const auto& [name, state] : window.wizard().screen().controls()) {
        QWidget* widget = window.control(name);
        if (widget != nullptr && !hidden(widget)) named.emplace_back(QString::fromStdString(name), widget);
    }
    return named;
}

NamedControls ownControls(QWidget& window) {
    NamedControls named;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(QLatin1String("qt_")))
            named.emplace_back(widget->objectName(), widget);
    return named;
}

// Every control that the user can see on `window`, with its rectangle in the window.
QJsonArray visibleControls(QWidget& window, const NamedControls& named) {
    QJsonArray controls;
    const QRect bounds = window.rect();
    for (const auto& [name, widget] : named) {
        if (!widget->isVisibleTo(&window)) continue;
        const QRect area(widget->mapTo(&window, QPoint(0, 0)), widget->size());
        if (!area.intersects(bounds)) continue;
        controls.append(QJsonObject{{QStringLiteral("name"), name},
                                    {QStringLiteral("x"), area.x()},
                                    {QStringLiteral("y"), area.y()},
                                    {QStringLiteral("width"), area.width()},
                                    {QStringLiteral("height"), area.height()},
                                    {QStringLiteral("text"), shownText(*widget)}});
    }
    return controls;
}

class ScreenWriter {
public:
    explicit ScreenWriter(const QString& folder) : folder_(folder) {}

    void take(QWidget& window, const QString& step, const NamedControls& named) {
        QApplication::processEvents();
        const QString file = QStringLiteral("%1-%2.png").arg(screens_.size() + 1).arg(step);
        if (!window.grab().save(folder_ + QLatin1Char('/') + file)) failed_ = true;
        files_.push_back(folder_ + QLatin1Char('/') + file);
        screens_.append(QJsonObject{{QStringLiteral("step"), step},
                                    {QStringLiteral("file"), file},
                                    {QStringLiteral("title"), window.windowTitle()},
                                    {QStringLiteral("width"), window.width()},
                                    {QStringLiteral("height"), window.height()},
                                    {QStringLiteral("controls"), visibleControls(window, named)}});
    }

    bool finish() {
        QFile json(folder_ + QStringLiteral("/screens.json"));
        if (!json.open(QIODevice::WriteOnly)) return false;
        json.write(QJsonDocument(QJsonObject{{QStringLiteral("screens"), screens_}}).toJson());
        return json.flush() && !failed_;
    }

    std::vector<QString>& files() { return files_; }

private:
    QString folder_;
    QJsonArray screens_;
    std::vector<QString> files_;
    bool failed_ = false;
};

enum class Until { RollEnds, RunEnds, CountdownEnds };

// Delivers the ticks of the roll, then of the run and of the countdown as asked, without waiting.
void settle(installPreview& window, Until until) {
    std::vector<WizardTimer> timers = {WizardTimer::Timer4, WizardTimer::Timer5};
    if (until != Until::RollEnds) timers.push_back(WizardTimer::Timer1);
    if (until == Until::CountdownEnds) timers.push_back(WizardTimer::Timer2);
    InstallWizard& wizard = window.wizard();
    for (int tick = 0; tick < 2000; ++tick) {
        const auto next = std::find_if(timers.begin(), timers.end(),
                                       [&](WizardTimer which) { return wizard.timer(which).enabled; });
        if (next == timers.end()) return;
        window.deliverTick(*next);
    }
}

}  // namespace

WizardScreensResult writeWizardScreens(Host& host, Dialogs& dialogs, const WizardProject& project,
                                       const QString& folder) {
    WizardScreensResult result;
    QDir().mkpath(folder);
    installPreviewContext context(host, dialogs);
    context.project = project;
    installPreview window(std::move(context));
    if (!window.start()) {
        result.error = "the wizard did not start";
        return result;
    }
    window.show();
    ScreenWriter writer(folder);
    InstallWizard& wizard = window.wizard();
    const WizardScreen& screen = wizard.screen();
    const auto panelShown = [&](int panel) {
        return screen.visible(WizardScreen::panel(panel)) && screen.at(WizardScreen::panel(panel)).left == 0;
    };
    if (panelShown(0) && !panelShown(2)) {
        writer.take(window, QStringLiteral("start"), wizardControls(window));
        if (screen.visible("Command6")) {
            window.Command6_Click();
            if (installPackages* chooser = window.packageChooser()) {
                QApplication::processEvents();
                writer.take(*chooser, QStringLiteral("packages"), ownControls(*chooser));
                chooser->Timer1->stop();
            }
            window.Command6_Click();
        }
        window.Command1_Click();
        settle(window, Until::RollEnds);
        if (screen.visible("mainzone(1)") && screen.text("Command1") == "I accept these terms") {
            writer.take(window, QStringLiteral("licence"), wizardControls(window));
            window.Command1_Click();
            settle(window, Until::RollEnds);
        }
    }
    if (!screen.visible("mainzone(2)")) {
        result.error = "the wizard stayed on its start panel";
    } else {
        writer.take(window, QStringLiteral("installing"), wizardControls(window));
        settle(window, Until::RunEnds);
        if (!wizard.installFinished()) result.error = "the run did not end";
        window.Command1_Click();
        settle(window, Until::CountdownEnds);
        if (screen.visible("mainzone(3)"))
            writer.take(window, QStringLiteral("finished"), wizardControls(window));
    }
    result.files = std::move(writer.files());
    if (!writer.finish() && result.error.empty())
        result.error = "the screens could not be written to the folder";
    window.closeWindow();
    return result;
}

}  // namespace orvanta
