// SPDX-License-Identifier: MIT
#include "editor/form/formarea.h"

using namespace TutorialEditor;

FormArea::FormArea(QWidget* form)
{
    setWidget(form);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

QSize FormArea::sizeHint() const
{
    return widget()->sizeHint();
}
