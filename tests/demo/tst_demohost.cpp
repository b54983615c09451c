// SPDX-License-Identifier: MIT
#include "demo/mainwindow.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

// What goes wrong, or must not, while the editor is at work.
class tst_DemoHost : public QObject {
    Q_OBJECT

private slots:
    void asksBeforeItOverwrites_data();
    void asksBeforeItOverwrites();
};

void tst_DemoHost::asksBeforeItOverwrites_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("new") << false << QMessageBox::NoButton;
    QTest::newRow("keep") << true << QMessageBox::No;
    QTest::newRow("overwrite") << true << QMessageBox::Yes;
}

// Also when the author leaves the suffix to the dialog.
void tst_DemoHost::asksBeforeItOverwrites()
{
    QFETCH(bool, exists);
    QFETCH(QMessageBox::StandardButton, answer);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("lesson.js")));
    QVERIFY(!exists || file.open(QIODevice::WriteOnly));
    MainWindow window;
    window.show();
    QSignalSpy requests(&window, &MainWindow::newTutorialRequested);

    window.findChild<QAction*>(QStringLiteral("New Tutorial"))->trigger();
    auto* dialog = window.findChild<QFileDialog*>(QStringLiteral("FileDialog"));
    QVERIFY(dialog);
    dialog->setDirectory(folder.path());
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
        ->setText(QStringLiteral("lesson"));
    int questions = 0;
    QTimer::singleShot(0, this, [&] {
        if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++questions;
            question->button(answer)->click();
        }
    });
    dialog->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))
        ->button(QDialogButtonBox::Save)
        ->click();
    QTRY_COMPARE(questions, int(exists));
    QCOMPARE(requests.size(), int(answer != QMessageBox::No));
    if (!requests.isEmpty())
        QCOMPARE(requests.first().first().toString(), file.fileName());
    dialog->close();
}

QTEST_MAIN(tst_DemoHost)
#include "tst_demohost.moc"
