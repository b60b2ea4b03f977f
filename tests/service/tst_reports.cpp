#include <QtTest>

class tst_reports : public QObject
{
    Q_OBJECT
};

QTEST_GUILESS_MAIN(tst_reports)
#include "tst_reports.moc"
