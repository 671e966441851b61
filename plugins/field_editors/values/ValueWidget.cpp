#include "ValueWidget.h"

void ValueWidget::setRange(const ValueRange*) {}
