#include "uitest.h"

#include "shell/aboutwindow.h"
#include "shell/helpwindow.h"

#include <QDesktopServices>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QUrl>

namespace {

using namespace uitest;
using shell::App;

class HelpTest : public WindowTest {
protected:
    App* app() const { return App::instance(); }
    shell::HelpWindow* help() const { return app()->helpWindow(); }
};

TEST_F(HelpTest, HelpButtonShowsAndHidesTheUsageBesideTheWindow) {
    w->HelpBtn->click();
    EXPECT_TRUE(app()->isExistHelp);
    EXPECT_TRUE(help()->isVisible());
    EXPECT_EQ(help()->parentWin, w);
    // The offscreen screen has no room on the right: the help window stands flush left, frame to frame.
    EXPECT_EQ(help()->frameGeometry().topRight(), w->frameGeometry().topLeft() - QPoint(1, 0));
    EXPECT_EQ(help()->windowTitle(), "Kestrune");
    EXPECT_FALSE(help()->windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(help()->Label1->text().startsWith("[Operation description]"));
    EXPECT_EQ(help()->Label1->text().count('\n'), 9);
    EXPECT_TRUE(help()->Label1->textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_EQ(help()->minimumSize(), help()->maximumSize()) << "not resizable";

    w->HelpBtn->click();
    EXPECT_FALSE(app()->isExistHelp);
    EXPECT_FALSE(help()->isVisible());
}

TEST_F(HelpTest, ClosingTheHelpWindowReleasesTheParentsButton) {
    w->HelpBtn->click();
    help()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(w->HelpBtn->Value());
    EXPECT_FALSE(app()->isExistHelp);
    EXPECT_FALSE(app()->hasHelpWindow()) << "closing destroys it; the next press makes a new one";
    w->HelpBtn->click();
    EXPECT_TRUE(help()->isVisible());
    EXPECT_EQ(help()->parentWin, w);
}

TEST_F(HelpTest, TwoPressedButtonsOnlyTheParentIsReleased) {
    auto* second = new MainWindow;
    showActive(second);
    w->HelpBtn->click();
    second->HelpBtn->click();
    EXPECT_EQ(help()->parentWin, second);
    EXPECT_TRUE(w->HelpBtn->Value());
    help()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(second->HelpBtn->Value());
    EXPECT_TRUE(w->HelpBtn->Value());
    w->HelpBtn->click(); // releases it and hides nothing that is open
    EXPECT_FALSE(app()->isExistHelp);
}

TEST_F(HelpTest, NewWindowHidesTheHelpAndReleasesItsParent) {
    w->HelpBtn->click();
    menuItem(w, "FileNew")->trigger();
    EXPECT_FALSE(help()->isVisible());
    EXPECT_FALSE(w->HelpBtn->Value());
    EXPECT_FALSE(app()->isExistHelp);
}

TEST_F(HelpTest, AClosedParentCountsAsNone) {
    auto* other = new MainWindow;
    showActive(other);
    other->HelpBtn->click();
    other->HelpBtn->click(); // hidden, parentWin still the other window
    other->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(help()->parentWin, nullptr);
    menuItem(w, "FileNew")->trigger();
    help()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(app()->isExistHelp);
}

TEST_F(HelpTest, ClosingAMainWindowHidesTheHelp) {
    auto* other = new MainWindow;
    showActive(other);
    other->HelpBtn->click();
    w->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(help()->isVisible());
    EXPECT_TRUE(other->HelpBtn->Value());
}

// --- About --------------------------------------------------------------------------------------

class UrlCatcher : public QObject {
    Q_OBJECT
public:
    QList<QUrl> opened;
public slots:
    void open(const QUrl& url) { opened.append(url); }
};

TEST_F(HelpTest, AboutShowsTheVersionAndHidesOnCloseAndOnTheLink) {
    menuItem(w, "AppleAbout")->trigger();
    shell::AboutWindow* about = app()->aboutWindow();
    EXPECT_TRUE(about->isVisible());
    EXPECT_TRUE(about->isModal());
    EXPECT_EQ(about->verName->text(), "Version 0.1.3");
    EXPECT_EQ(about->appName->text(), "Kestrune");
    EXPECT_EQ(about->appName1->text(), "Principal payment\nor Flat payment Calculation");
    EXPECT_FALSE(about->Canvas1->pixmap().isNull());
    EXPECT_EQ(about->Canvas1->pixmap().size(), QSize(128, 128));
    EXPECT_EQ(about->urlMsg->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(about->cursor().shape(), Qt::ArrowCursor);
    EXPECT_TRUE(about->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(about->minimumSize(), about->maximumSize());
    QTest::mouseClick(about->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(about->isVisible());

    UrlCatcher catcher;
    QDesktopServices::setUrlHandler("https", &catcher, "open");
    w->_AppleAbout_Action();
    QTest::mouseClick(about->urlMsg, Qt::LeftButton);
    QDesktopServices::unsetUrlHandler("https");
    EXPECT_FALSE(about->isVisible());
    ASSERT_EQ(catcher.opened.size(), 1);
    EXPECT_EQ(catcher.opened.front(), QUrl(shell::AboutWindow::kWebAddress));
}

} // namespace

#include "helpabout_test.moc"
