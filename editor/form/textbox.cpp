// SPDX-License-Identifier: MIT
#include "editor/form/textbox.h"

#include <QtMath>

using namespace TutorialEditor;

TextBox::TextBox(int lines) : mLines(lines)
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize TextBox::sizeHint() const
{
    const QMargins margins = contentsMargins();
    const int height = mLines * fontMetrics().lineSpacing()
        + 2 * qCeil(document()->documentMargin()) + margins.top() + margins.bottom();
    return QSize(fontMetrics().averageCharWidth() * 20, height);
}

QSize TextBox::minimumSizeHint() const
{
    return QSize(fontMetrics().averageCharWidth() * 10, sizeHint().height());
}
