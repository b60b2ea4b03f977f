#include <QtTest>

class tst_facade : public QObject
{
    Q_OBJECT
};

QTEST_GUILESS_MAIN(tst_facade)
#include "tst_facade.moc"
