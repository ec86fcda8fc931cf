// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/aboutwindow.h"

#include "shell/app.h"
#include "strings/lookup.h"
#include "version.h"

#include <QDesktopServices>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QUrl>

namespace shell {
namespace {

QLabel* centredLabel(QWidget* parent, const QString& text, QRect rect, int pixelSize, bool bold = false) {
    auto* label = new QLabel(text, parent);
    label->setGeometry(rect);
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

} // namespace

AboutWindow::AboutWindow(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::FramelessWindowHint) {
    setObjectName("AboutWindow");
    setFixedSize(300, 320);
    setWindowModality(Qt::ApplicationModal);
    addActions({App::instance()->fileNewAction(), App::instance()->fileQuitAction()});

    appName = centredLabel(this, strings::text(strings::kAppName), {30, 122, 230, 46}, 26, true);
    verName = centredLabel(this, "Version", {70, 167, 150, 20}, 16);
    copyrightMsg = centredLabel(this, "\u00A9 2026 The Kestrune developers\nGNU General Public License 3 or later",
                                {20, 233, 250, 32}, 12);
    urlMsg = centredLabel(this, kWebAddress, {35, 266, 220, 18}, 12);
    urlMsg->setStyleSheet("color: #0000ff; text-decoration: underline;");
    urlMsg->setCursor(Qt::PointingHandCursor);
    urlMsg->installEventFilter(this);

    PushButton1 = new QPushButton(strings::text(strings::kCloseBtn), this);
    PushButton1->setGeometry(110, 291, 70, 22);
    PushButton1->setDefault(true);
    connect(PushButton1, &QPushButton::clicked, this, &AboutWindow::PushButton1_Action);

    appName1 = centredLabel(this, strings::text(strings::kAppName2), {30, 195, 230, 36}, 12);
    Canvas1 = new QLabel(this);
    Canvas1->setGeometry(86, 4, 128, 128);
    Canvas1->setPixmap(QPixmap(":/icons/kestrune-128.png"));
}

void AboutWindow::ShowModal() {
    verName_Open();
    show();
    raise();
    activateWindow();
}

void AboutWindow::verName_Open() { verName->setText(QString("Version ") + kestrune::kVersion); }

bool AboutWindow::urlMsg_MouseDown() {
    hide();
    QDesktopServices::openUrl(QUrl(urlMsg->text()));
    return false;
}

void AboutWindow::PushButton1_Action() { hide(); }

bool AboutWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == urlMsg && event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        urlMsg_MouseDown();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace shell
