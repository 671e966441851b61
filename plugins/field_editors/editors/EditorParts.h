#pragma once

class FieldBinding;
class ValueWidget;

/** What the user does with the widget in one go is undone in one go. */
void connectGestures(ValueWidget& values, FieldBinding& binding);
