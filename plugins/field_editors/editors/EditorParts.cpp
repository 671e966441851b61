#include "EditorParts.h"

#include <plugins/field_editors/edit/FieldBinding.h>
#include <plugins/field_editors/values/ValueWidget.h>

void connectGestures(ValueWidget& values, FieldBinding& binding)
{
    QObject::connect(&values, &ValueWidget::gestureBegun, &binding, &FieldBinding::beginGesture);
    QObject::connect(&values, &ValueWidget::gestureEnded, &binding, &FieldBinding::endGesture);
    QObject::connect(&values, &ValueWidget::gestureCancelled, &binding, &FieldBinding::cancelGesture);
}
