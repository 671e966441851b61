#pragma once

#include <extension/NscFieldEditor.h>
#include <vexel/fields/SoSFTime.h>
#include <vexel/sensors/SoFieldSensor.h>

#include <memory>

class QDateTimeEdit;
class QDoubleSpinBox;

/** Edits a time, as seconds and as date and time of day (UTC). */
class TimeEditor : public NscFieldEditor {
    Q_OBJECT
public:
    explicit TimeEditor(const SbString& name);
    ~TimeEditor() override;

    void activate() override;
    QWidget* getWidget() override { return m_widget.get(); }
    void setField(SoField* field) override;

private:
    SoSFTime* field() const;
    void showValue();
    void edit(double seconds);

    SoFieldSensor m_field;
    std::unique_ptr<QWidget> m_widget;
    QDoubleSpinBox* m_seconds;
    QDateTimeEdit* m_date;
};
