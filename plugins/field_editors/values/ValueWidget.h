#pragma once

#include <QWidget>
#include <map>

class NumberGrid;
class SoField;

/** The range that a number is known to lie in. */
struct ValueRange {
    double lowest;
    double highest;
};

/**
 * Shows one value and lets the user change it. Knows nothing of where the value comes from: it is given as a
 * single-value field, and a changed one is given back as such.
 */
class ValueWidget : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /** Shows a value of the field type that the widget is made for; what the user is typing stays. */
    virtual void showValue(const SoField& value) = 0;
    virtual void setReadOnly(bool isReadOnly) = 0;
    /** Null: not known. By default without effect. */
    virtual void setRange(const ValueRange* range);
    /** What the user is typing or choosing is dropped, because another value than the one so far is to be shown; what
     * was given back stays. By default that of the included grids. */
    virtual void forgetInput();

signals:
    /** The user made this value, of the same type as those shown. */
    void edited(const SoField& value);
    /** What is edited from the first to the second belongs together, as while the mouse button is held. */
    void gestureBegun();
    void gestureEnded();
    /** Follows a begun gesture instead of gestureEnded(): it shall not have happened. */
    void gestureCancelled();
    /** Why what the user typed is no value, in a sentence; empty: it is one again. */
    void problemChanged(const QString& problem);

protected:
    /** Passes the grid's gestures and problems on. It lives as long as the widget. */
    void include(NumberGrid& grid);

private:
    std::map<NumberGrid*, QString> m_problems; ///< of the included grids
};
