#include <QtTest>

class tst_smart : public QObject
{
    Q_OBJECT
};

QTEST_GUILESS_MAIN(tst_smart)
#include "tst_smart.moc"
