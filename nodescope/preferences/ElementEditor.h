#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/preferences/DisplayElement.h>

#include "ui_QElementEditor.h"

/**
 * Edits the display elements of one group of the preference store: font, colour, and how a text looks in them. Nothing is
 * stored before save().
 */
class NODESCOPE_API ElementEditor : public QGroupBox, private Ui::QElementEditor {
    Q_OBJECT
public:
    explicit ElementEditor(QWidget* parent = nullptr);

    /** Lists the elements of a group, with their defaults; to be called once. */
    void setGroup(const char* group);
    /** A further control of the current element, below the others. */
    void addOption(QWidget* option);

    /** Takes the elements from the store, and makes the first one current. */
    void load();
    void save() const;

    const DisplayElementMap& elements() const { return m_elements; }
    /** Whether the current element is shown in its panel. */
    void setCurrentShown(bool isShown);

signals:
    /** Another element is current, or the current one changed. */
    void currentElementChanged(const DisplayElement& element);

private slots:
    void elementChanged();
    void familyChanged(const QString& family);
    void sizeChanged(int size);
    void boldChanged(bool isOn);
    void italicChanged(bool isOn);
    void underlineChanged(bool isOn);
    void colorClicked();
    void setToDefault();

private:
    QString currentName() const;
    DisplayElement* current();
    void showCurrent();
    void showPreview(const DisplayElement& element);
    /** Changes the current element, if any, and shows how it looks then. */
    template <class Change>
    void change(Change&& apply);

    QString m_group;
    DisplayElementMap m_elements;
};
