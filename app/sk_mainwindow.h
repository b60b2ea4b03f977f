#pragma once
// The console's main window.

#include <QMainWindow>

class QLabel;

class SK_MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit SK_MainWindow(QWidget *parent = nullptr);
    ~SK_MainWindow() override;

private:
    void showDriverLink();

    QLabel *m_linkLabel = nullptr;
};
