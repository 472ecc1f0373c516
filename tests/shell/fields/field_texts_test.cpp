#include <QTest>

#include "shell/fields/name_search.h"
#include "shell/fields/pasted_bands.h"

namespace velmar::shell {

/// What fields make of texts that are searched for or pasted.
class FieldTextsTest : public QObject {
  Q_OBJECT

 private slots:
  void hitsThatBeginWithTheTextStandFirst() {
    const QStringList names = {"Intonaco di calce e cemento", "Malta cementizia", "Cemento", "Cemento armato",
                               "Fibrocemento"};
    QCOMPARE(RankedHits(names, "cemento"),
             QStringList({"Cemento", "Cemento armato", "Intonaco di calce e cemento", "Fibrocemento"}));
    QCOMPARE(RankedHits(names, " calce E cem "), QStringList{"Intonaco di calce e cemento"});
    QCOMPARE(RankedHits(names, "criptonite"), QStringList());
    QCOMPARE(RankedHits(names, "  "), names);
  }

  void aWordCountsWhereverItStands() {
    // The first place is inside a word, the second begins one.
    QCOMPARE(RankedHits({"sottolana", "tela e lana", "lamelana di lana"}, "lana"),
             QStringList({"tela e lana", "lamelana di lana", "sottolana"}));
  }

  void aColumnGoesOnFromItsBox() {
    const auto bands = ReadPastedBands("30\n31,5\n33.25\n", 4);
    QVERIFY(bands);
    QCOMPARE(*bands, (std::map<std::size_t, std::string>{{4, "30"}, {5, "31,5"}, {6, "33.25"}}));
  }

  void aWholeSpectrumBeginsAtItsFirstBand() {
    QStringList numbers;
    for (int i = 0; i < 21; ++i) numbers += QString::number(20 + i);
    const auto all = ReadPastedBands(numbers.join('\t'), 9);
    QVERIFY(all);
    QCOMPARE(all->size(), std::size_t{21});
    QCOMPARE(all->at(0), std::string("20"));
    const auto rated = ReadPastedBands(numbers.mid(0, 16).join("\r\n"), 9);
    QVERIFY(rated);
    QCOMPARE(rated->begin()->first, std::size_t{3});
    QCOMPARE(rated->rbegin()->first, std::size_t{18});
  }

  void frequenciesSayTheirBand() {
    const auto bands = ReadPastedBands("100\t35,2\n1,25 kHz;41\n5000 Hz\t50", 7);
    QVERIFY(bands);
    QCOMPARE(*bands, (std::map<std::size_t, std::string>{{3, "35,2"}, {14, "41"}, {20, "50"}}));
  }

  void whatIsNoSpectrumIsRefused_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("a word") << "30\nuno\n32";
    QTest::newRow("beyond the last band") << "1\n2\n3\n4\n5";
    QTest::newRow("not finite") << "30\n1E400";
  }
  void whatIsNoSpectrumIsRefused() {
    QFETCH(const QString, text);
    QVERIFY(!ReadPastedBands(text, 18));
  }

  void aTableHasMoreThanOneCell() {
    QVERIFY(IsTableOfCells("1\n2"));
    QVERIFY(IsTableOfCells("1\t2"));
    QVERIFY(!IsTableOfCells("12,5"));
    QVERIFY(!IsTableOfCells("12,5\n"));
  }
};

}  // namespace velmar::shell

QTEST_APPLESS_MAIN(velmar::shell::FieldTextsTest)
#include "field_texts_test.moc"
