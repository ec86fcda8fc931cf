#pragma once
// Controls placed by position and size, kept in place on resizing by their locks: a control
// locked right keeps its distance to the right edge (and stretches if also locked left), one
// locked bottom keeps its distance to the bottom edge (and stretches if also locked top).

#include <QFlags>
#include <QRect>
#include <QWidget>

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

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Placed {
        QWidget* control;
        QRect designRect;
        Locks locks;
    };
    QRect rectFor(const Placed& placed) const;

    QSize m_designSize;
    std::vector<Placed> m_placed;
};

} // namespace controls
