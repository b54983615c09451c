// SPDX-License-Identifier: MIT
#include "editor/noticebar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace TutorialEditor;

namespace {

constexpr int kMargin = 3; // pixels

QPushButton* createButton(const char* name, const QString& text, const QString& description)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(description);
    button->setAccessibleDescription(description);
    // Return does not press it.
    button->setAutoDefault(false);
    return button;
}

} // namespace

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), mText(new QLabel)
{
    setObjectName(QStringLiteral("notice"));
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Notice"));
    mText->setObjectName(QStringLiteral("noticeText"));
    mText->setTextFormat(Qt::PlainText);
    mText->setWordWrap(true);
    // A long name must not widen the window.
    mText->setMinimumWidth(1);
    mReload = createButton("noticeReload", tr("&Reload"), tr("Loads what the file holds now"));
    QPushButton* hideButton =
        createButton("noticeHide", tr("Hi&de"), tr("Hides this line until something else happens"));

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(mReload);
    buttons->addWidget(hideButton);
    auto* layout = new QVBoxLayout(this);
    // The tool is small, and its other parts go on being of use.
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addWidget(mText);
    layout->addLayout(buttons);
    hide();

    connect(mReload, &QPushButton::clicked, this, &NoticeBar::reloadClicked);
    connect(hideButton, &QPushButton::clicked, this, &QWidget::hide);
}

void NoticeBar::tell(const QString& text, bool withReload)
{
    mText->setText(text);
    mText->setToolTip(text.toHtmlEscaped());
    setAccessibleDescription(text);
    mReload->setVisible(withReload);
    show();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}
