#include "dialogs/sk_questions.h"

#include <QMessageBox>

bool SK_AskYesNo(QWidget *parent, const QString &title, const QString &question, const QString &yes,
                 const QString &no)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No,
                    parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box.setButtonText(QMessageBox::Yes, yes);
    box.setButtonText(QMessageBox::No, no);
    return box.exec() == QMessageBox::Yes;
}
