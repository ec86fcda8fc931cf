// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Controls placed by position and size, kept in place on resizing by their locks: a control
// locked right keeps its distance to the right edge (and stretches if also locked left), one
// locked bottom keeps its distance to the bottom edge (and stretches if also locked top).
//
// The positions are a design for one font. fit() widens each control to the width its texts
// need in the font in use, moves the controls after it on the same line along by as much, and
// widens the design (and so the window's smallest width) where a line no longer fits.

#include <QFlags>
#include <QRect>
#include <QWidget>

class QLineEdit;

#include <vector>

namespace controls {

enum class Lock { Left = 1, Top = 2, Right = 4, Bottom = 8 };
Q_DECLARE_FLAGS(Locks, Lock)
Q_DECLARE_OPERATORS_FOR_FLAGS(Locks)

// A surface whose children are placed at fixed rectangles and follow their locks.
class LockedLayoutWidget : public QWidget {
    Q_OBJECT
public:
    LockedLayoutWidget(QSize designSize, QWidget* parent = nullptr);

    void place(QWidget* control, QRect designRect, Locks locks = Locks(Lock::Left) | Lock::Top);
    // The width the control needs for its texts; it is never made narrower than its design.
    void setNeededWidth(QWidget* control, int width);
    // Lays the design out anew from the needed widths, its heights and rows stretched by
    // `verticalScale` for a font taller than the design's.
    void fit(double verticalScale = 1.0);
    // The design's size after fitting: the surface's smallest useful size.
    QSize designSize() const { return m_fittedSize; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Placed {
        QWidget* control;
        QRect designRect;
        Locks locks;
        int neededWidth = 0;
        QRect fittedRect;
    };
    QRect rectFor(const Placed& placed) const;

    QSize m_designSize;
    QSize m_fittedSize;
    std::vector<Placed> m_placed;
};

// The widths that show a text whole in each kind of control, in the control's own font and style.
int widthForText(const QLineEdit* edit, const QString& text);
int widthForCaptions(QWidget* buttonOrLabel, const QStringList& captions);

// Resizes a top-level window to `wanted`, or to as much of it as its screen has room for beside
// the frame and title bar a window manager adds; no smaller than its minimum size.
void resizeWithinScreen(QWidget* window, QSize wanted);

} // namespace controls
