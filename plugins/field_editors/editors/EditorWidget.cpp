#include "EditorWidget.h"

#include <plugins/field_editors/values/ValueWidget.h>

void EditorWidget::connectGestures(ValueWidget& values)
{
    connect(&values, &ValueWidget::gestureBegun, &m_binding, &FieldBinding::beginGesture);
    connect(&values, &ValueWidget::gestureEnded, &m_binding, &FieldBinding::endGesture);
    connect(&values, &ValueWidget::gestureCancelled, &m_binding, &FieldBinding::cancelGesture);
}
