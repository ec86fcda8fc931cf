// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The About window: icon, name, version, what the program computes, copyright and the web
// address, which opens in the browser. Modal, with no title and no close button; Close or the
// link hide it.

#include <QDialog>

class QLabel;
class QPushButton;

namespace shell {

class AboutWindow : public QDialog {
    Q_OBJECT
public:
    static constexpr const char* kWebAddress = "https://kestrune.example.org";

    explicit AboutWindow(QWidget* parent = nullptr);
    void ShowModal();

    QLabel* appName;
    QLabel* verName;
    QLabel* copyrightMsg;
    QLabel* urlMsg;
    QPushButton* PushButton1;
    QLabel* appName1;
    QLabel* Canvas1;

    void verName_Open();
    bool urlMsg_MouseDown();
    void PushButton1_Action();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace shell
