#pragma once
// The console's yes-or-no question: a modal box whose two buttons carry the caller's
// own translations of "Yes" and "No", so every question reads alike in every language.

#include <QString>

class QWidget;

// True when the user answered `yes`.
bool SK_AskYesNo(QWidget *parent, const QString &title, const QString &question, const QString &yes,
                 const QString &no);
