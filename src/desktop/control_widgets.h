#pragma once

#include <QString>
#include <QWidget>

#include "desktop/style.h"
#include "platform/form.h"

namespace veld {

/// Makes the widget of a control on the page, without what it shows.
QWidget* MakeControlWidget(const Control& control, const PaperStyle& style, QWidget* page);

/// Lets the widget show the control's state; `marked` is its text with the mark before the letter that reaches it.
/// Sends none of the signals that a player's doings send.
void ShowControl(QWidget& widget, const Control& control, const QString& marked);

/// Gives the widget its place on the page.
void PlaceControl(QWidget& widget, const Control& control, const PlacedControl& placed);

}  // namespace veld
