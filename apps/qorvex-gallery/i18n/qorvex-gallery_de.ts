<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Catalogue</name>
    <message>
        <source>Normal</source>
        <translation>Normalverteilung</translation>
    </message>
    <message>
        <source>Log-normal</source>
        <translation>Lognormalverteilung</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponentialverteilung</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gammaverteilung</translation>
    </message>
    <message>
        <source>Chi-square</source>
        <translation>Chi-Quadrat-Verteilung</translation>
    </message>
    <message>
        <source>Student&apos;s t</source>
        <translation>Studentsche t-Verteilung</translation>
    </message>
    <message>
        <source>F</source>
        <translation>F-Verteilung</translation>
    </message>
    <message>
        <source>Beta</source>
        <translation>Betaverteilung</translation>
    </message>
    <message>
        <source>Uniform</source>
        <translation>Gleichverteilung</translation>
    </message>
    <message>
        <source>Weibull</source>
        <translation>Weibull-Verteilung</translation>
    </message>
    <message>
        <source>Gumbel</source>
        <translation>Gumbel-Verteilung</translation>
    </message>
    <message>
        <source>Logistic</source>
        <translation>Logistische Verteilung</translation>
    </message>
    <message>
        <source>Cauchy</source>
        <translation>Cauchy-Verteilung</translation>
    </message>
    <message>
        <source>Von Mises</source>
        <translation>Von-Mises-Verteilung</translation>
    </message>
    <message>
        <source>Generalised inverse Gaussian</source>
        <translation>Verallg. inverse Gauß-Verteilung</translation>
    </message>
    <message>
        <source>Binomial</source>
        <translation>Binomialverteilung</translation>
    </message>
    <message>
        <source>Hypergeometric</source>
        <translation>Hypergeometrische Verteilung</translation>
    </message>
    <message>
        <source>Poisson</source>
        <translation>Poisson-Verteilung</translation>
    </message>
    <message>
        <source>Geometric</source>
        <translation>Geometrische Verteilung</translation>
    </message>
    <message>
        <source>Negative binomial</source>
        <translation>Negative Binomialverteilung</translation>
    </message>
</context>
<context>
    <name>RegressionReport</name>
    <message>
        <source>A regression needs a predictor.</source>
        <translation>Eine Regression braucht eine Einflussgröße.</translation>
    </message>
    <message>
        <source>The values must be finite.</source>
        <translation>Die Werte müssen endlich sein.</translation>
    </message>
    <message>
        <source>The values are too large: the figures are beyond the range of extended precision.</source>
        <translation>Die Werte sind zu groß: Die Ergebnisse liegen außerhalb des Bereichs der 80-Bit-Zahlen.</translation>
    </message>
    <message>
        <source>%L1 coefficients need at least as many complete rows.</source>
        <translation>%L1 Koeffizienten brauchen mindestens so viele vollständige Zeilen.</translation>
    </message>
    <message>
        <source>A line needs two different values of %1.</source>
        <translation>Eine Gerade braucht zwei verschiedene Werte von %1.</translation>
    </message>
    <message>
        <source>A parabola needs three different values of %1.</source>
        <translation>Eine Parabel braucht drei verschiedene Werte von %1.</translation>
    </message>
    <message>
        <source>This polynomial needs %1 different values of %2.</source>
        <translation>Dieses Polynom braucht %1 verschiedene Werte von %2.</translation>
    </message>
    <message>
        <source>%1 has the same value in all rows.</source>
        <translation>%1 hat in allen Zeilen denselben Wert.</translation>
    </message>
    <message>
        <source>%1 depends linearly on the constant and the predictors before it.</source>
        <translation>%1 hängt linear von der Konstanten und den Einflussgrößen davor ab.</translation>
    </message>
    <message>
        <source>Fitted: %1</source>
        <translation>Angepasst: %1</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassung</translation>
    </message>
    <message>
        <source>Response equal to fit</source>
        <translation>Zielgröße gleich Anpassung</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstante</translation>
    </message>
    <message>
        <source>Term</source>
        <translation>Glied</translation>
    </message>
    <message>
        <source>Estimate</source>
        <translation>Schätzwert</translation>
    </message>
    <message>
        <source>Standard error</source>
        <translation>Standardfehler</translation>
    </message>
    <message>
        <source>Lower 95 %</source>
        <translation>95 % von</translation>
    </message>
    <message>
        <source>Upper 95 %</source>
        <translation>95 % bis</translation>
    </message>
    <message>
        <source>p</source>
        <translation>p</translation>
    </message>
    <message>
        <source>Complete rows</source>
        <translation>Vollständige Zeilen</translation>
    </message>
    <message>
        <source>Sum of squared errors</source>
        <translation>Summe der Fehlerquadrate</translation>
    </message>
    <message>
        <source>Residual standard deviation</source>
        <translation>Standardabweichung der Residuen</translation>
    </message>
    <message>
        <source>Coefficient of determination</source>
        <translation>Bestimmtheitsmaß</translation>
    </message>
    <message>
        <source>Adjusted coefficient of determination</source>
        <translation>Korrigiertes Bestimmtheitsmaß</translation>
    </message>
    <message>
        <source>p of the whole fit</source>
        <translation>p der ganzen Anpassung</translation>
    </message>
    <message>
        <source>Correlation of x and y</source>
        <translation>Korrelation von x und y</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::ColumnReport</name>
    <message>
        <source>Whole &amp;population (divide by n)</source>
        <translation>Gru&amp;ndgesamtheit (durch n teilen)</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>No values to show</source>
        <translation>Keine Werte</translation>
    </message>
    <message>
        <source>&amp;Decimals:</source>
        <translation>Nachko&amp;mmastellen:</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::DataPage</name>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a CSV file; you can also drop one onto the page</source>
        <translation>Öffnet eine CSV-Datei; sie lässt sich auch auf die Seite ziehen</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Speichern unter…</translation>
    </message>
    <message>
        <source>Write the table with your changes to a CSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Michelson&apos;s determinations of the velocity of light, 1879</source>
        <translation>Michelsons Bestimmungen der Lichtgeschwindigkeit, 1879</translation>
    </message>
    <message>
        <source>&amp;Column:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a table</source>
        <translation>Tabelle öffnen</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt *.dat);;All files (*)</source>
        <translation>Tabellen (*.csv *.tsv *.txt *.dat);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Example: the velocity of light, Michelson 1879</source>
        <translation>Beispiel: die Lichtgeschwindigkeit, Michelson 1879</translation>
    </message>
    <message>
        <source>The first row was read as names, although it contains a number</source>
        <translation>Die erste Zeile wurde als Namen gelesen, obwohl sie eine Zahl enthält</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes in the table?</source>
        <translation>Die Änderungen der Tabelle speichern?</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Tabelle speichern</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::DistributionPage</name>
    <message>
        <source>Point</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Upper end of the interval</source>
        <translation>Oberes Ende des Intervalls</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Family of distributions</source>
        <translation>Familie der Verteilung</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Which probability</source>
        <translation>Welche Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Both sides of a point</source>
        <translation>Beide Seiten einer Stelle</translation>
    </message>
    <message>
        <source>Inside and outside an interval</source>
        <translation>Innerhalb und außerhalb eines Intervalls</translation>
    </message>
    <message>
        <source>At most the quantile</source>
        <translation>Höchstens das Quantil</translation>
    </message>
    <message>
        <source>More than the quantile</source>
        <translation>Mehr als das Quantil</translation>
    </message>
    <message>
        <source>Distribution</source>
        <translation>Verteilung</translation>
    </message>
    <message>
        <source>Probabilities</source>
        <translation>Wahrscheinlichkeiten</translation>
    </message>
    <message>
        <source>Quantile</source>
        <translation>Quantil</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>P(a &lt; X &lt; b)</source>
        <translation>P(a &lt; X &lt; b)</translation>
    </message>
    <message>
        <source>P(X ≤ a)</source>
        <translation>P(X ≤ a)</translation>
    </message>
    <message>
        <source>P(X ≥ b)</source>
        <translation>P(X ≥ b)</translation>
    </message>
    <message>
        <source>ln P(X ≤ a)</source>
        <translation>ln P(X ≤ a)</translation>
    </message>
    <message>
        <source>ln P(X ≥ b)</source>
        <translation>ln P(X ≥ b)</translation>
    </message>
    <message>
        <source>P(X = k)</source>
        <translation>P(X = k)</translation>
    </message>
    <message>
        <source>Density at x</source>
        <translation>Dichte bei x</translation>
    </message>
    <message>
        <source>P(X ≤ k)</source>
        <translation>P(X ≤ k)</translation>
    </message>
    <message>
        <source>P(X ≤ x)</source>
        <translation>P(X ≤ x)</translation>
    </message>
    <message>
        <source>P(X &gt; k)</source>
        <translation>P(X &gt; k)</translation>
    </message>
    <message>
        <source>P(X &gt; x)</source>
        <translation>P(X &gt; x)</translation>
    </message>
    <message>
        <source>ln P(X ≤ k)</source>
        <translation>ln P(X ≤ k)</translation>
    </message>
    <message>
        <source>ln P(X ≤ x)</source>
        <translation>ln P(X ≤ x)</translation>
    </message>
    <message>
        <source>ln P(X &gt; k)</source>
        <translation>ln P(X &gt; k)</translation>
    </message>
    <message>
        <source>ln P(X &gt; x)</source>
        <translation>ln P(X &gt; x)</translation>
    </message>
    <message>
        <source>Probability: %1 %2</source>
        <translation>Wahrscheinlichkeit: %1 %2</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Außerhalb</translation>
    </message>
    <message>
        <source>k</source>
        <translation>k</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>&amp;Documents</source>
        <translation>&amp;Dokumente</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vor</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::MainWindow</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <source>Distribution</source>
        <translation>Verteilung</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Zufall</translation>
    </message>
    <message>
        <source>Regression</source>
        <translation>Regression</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Save Data &amp;As…</source>
        <translation>Daten speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;System Colors</source>
        <translation>&amp;Systemfarben</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;This Page</source>
        <translation>&amp;Diese Seite</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>%1[*] – Qorvex Gallery</source>
        <translation>%1[*] – Qorvex Gallery</translation>
    </message>
    <message>
        <source>About Qorvex Gallery</source>
        <translation>Über Qorvex Gallery</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Qorvex %1&lt;/h3&gt;&lt;p&gt;Vectors, matrices, statistics and Qt components in 80-bit arithmetic.&lt;/p&gt;&lt;p&gt;Copyright © 2026 The Qorvex developers, under the MIT licence.&lt;/p&gt;&lt;p&gt;Uses Qt %2 under the LGPL, version 3.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Qorvex %1&lt;/h3&gt;&lt;p&gt;Vektoren, Matrizen, Statistik und Qt-Komponenten in 80-Bit-Arithmetik.&lt;/p&gt;&lt;p&gt;Copyright © 2026 The Qorvex developers, unter der MIT-Lizenz.&lt;/p&gt;&lt;p&gt;Verwendet Qt %2 unter der LGPL, Version 3.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::MatrixPage</name>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>&amp;Example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Dezimalzahlen</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>Brüche</translation>
    </message>
    <message>
        <source>Inverse</source>
        <translation>Inverse</translation>
    </message>
    <message>
        <source>&amp;Transpose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows become columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Inverse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The inverse of the matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row &amp;Echelon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reduces the matrix to row echelon form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reci&amp;procals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 divided by each element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;quares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each element squared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Square &amp;Roots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The square root of each element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;ln</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The natural logarithm of each element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lo&amp;g10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The decimal logarithm of each element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the last change again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delimited text (*.csv *.tsv *.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than %L1 rows or columns are too many here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Determinant</source>
        <translation>Determinante</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::MessageBar</name>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Meldung schließen</translation>
    </message>
    <message>
        <source>%1: %2 The value stays.</source>
        <translation>%1: %2 Der Wert bleibt.</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::PlotView</name>
    <message>
        <source>Save the Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>&amp;Copy Picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Save Picture…</source>
        <translation>Bild &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Print Picture…</source>
        <translation>Bild &amp;drucken…</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>%1: pictures are written to files that end in %2</source>
        <translation>%1: Bilder werden in Dateien geschrieben, die auf %2 enden</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>bars</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>stems</source>
        <translation>Stäbe</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>box</source>
        <translation>Kasten</translation>
    </message>
    <message>
        <source>band</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation>%1 von %2 bis %3</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>%1, %2 from %3 to %4</source>
        <translation>%1, %2 von %3 bis %4</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <comment>a layer&apos;s name and shape</comment>
        <translation>%1: %2.</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::RandomPage</name>
    <message>
        <source>Seed</source>
        <translation>Startwert</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Ziehen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>Variate</source>
        <translation>Zufallsgröße</translation>
    </message>
    <message>
        <source>No sample yet</source>
        <translation>Noch keine Stichprobe</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Stichprobe</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Take a random seed and generate</source>
        <translation>Nimmt einen zufälligen Startwert und zieht</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Seed: %1 %2</source>
        <translation>Startwert: %1 %2</translation>
    </message>
    <message>
        <source>%1: %L2 values, seed %3</source>
        <translation>%1: %L2 Werte, Startwert %3</translation>
    </message>
    <message>
        <source>Distribution</source>
        <translation>Verteilung</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Variance</source>
        <translation>Varianz</translation>
    </message>
    <message>
        <source>Sample, without the outermost hundredth</source>
        <translation>Stichprobe, ohne das äußerste Hundertstel</translation>
    </message>
    <message>
        <source>Probabilities</source>
        <translation>Wahrscheinlichkeiten</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>More than %L1 values are saved rather than copied</source>
        <translation>Mehr als %L1 Werte lassen sich nur speichern, nicht kopieren</translation>
    </message>
    <message>
        <source>Save the Values</source>
        <translation>Werte speichern</translation>
    </message>
    <message>
        <source>Text (*.csv *.txt)</source>
        <translation>Text (*.csv *.txt)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::RegressionPage</name>
    <message>
        <source>Own values</source>
        <translation>Eigene Werte</translation>
    </message>
    <message>
        <source>Columns of the sheet</source>
        <translation>Spalten der Tabelle</translation>
    </message>
    <message>
        <source>1 for a line, 2 for a parabola; with several predictors always 1</source>
        <translation>1 für eine Gerade, 2 für eine Parabel; bei mehreren Einflussgrößen immer 1</translation>
    </message>
    <message>
        <source>&amp;Data:</source>
        <translation>Da&amp;ten:</translation>
    </message>
    <message>
        <source>De&amp;gree:</source>
        <translation>&amp;Grad:</translation>
    </message>
    <message>
        <source>E&amp;xample</source>
        <translation>Bei&amp;spiel</translation>
    </message>
    <message>
        <source>Year, and thousands of people aged 14 and over in the USA; Longley 1967</source>
        <translation>Jahr und Tausende von Menschen ab 14 Jahren in den USA; Longley 1967</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Deletes all rows; Ctrl+Z in the table takes it back</source>
        <translation>Löscht alle Zeilen; Strg+Z in der Tabelle nimmt es zurück</translation>
    </message>
    <message>
        <source>&amp;Response (y):</source>
        <translation>&amp;Zielgröße (y):</translation>
    </message>
    <message>
        <source>&amp;Predictors (x):</source>
        <translation>&amp;Einflussgrößen (x):</translation>
    </message>
    <message>
        <source>Data and fit</source>
        <translation>Daten und Anpassung</translation>
    </message>
    <message>
        <source>No complete rows to show</source>
        <translation>Keine vollständigen Zeilen</translation>
    </message>
    <message>
        <source>Residuals</source>
        <translation>Residuen</translation>
    </message>
    <message>
        <source>No residuals to show</source>
        <translation>Keine Residuen</translation>
    </message>
    <message>
        <source>Least-squares fit, with 95 % bands for the mean and for single values</source>
        <translation>Kleinste Quadrate, mit 95-%-Bändern für Mittelwert und Einzelwerte</translation>
    </message>
    <message>
        <source>The sheet on the page Data is empty.</source>
        <translation>Die Tabelle auf der Seite Daten ist leer.</translation>
    </message>
    <message>
        <source>Tick one or more predictors.</source>
        <translation>Kreuzen Sie eine oder mehrere Einflussgrößen an.</translation>
    </message>
    <message>
        <source>%1 is the response and a predictor.</source>
        <translation>%1 ist Zielgröße und Einflussgröße zugleich.</translation>
    </message>
    <message>
        <source>Residual</source>
        <translation>Residuum</translation>
    </message>
    <message>
        <source>without 1 incomplete row</source>
        <translation>ohne 1 unvollständige Zeile</translation>
    </message>
    <message>
        <source>without %1 incomplete rows</source>
        <translation>ohne %1 unvollständige Zeilen</translation>
    </message>
    <message>
        <source>Regression</source>
        <translation>Regression</translation>
    </message>
    <message>
        <source>Coefficients</source>
        <translation>Koeffizienten</translation>
    </message>
    <message>
        <source>Quality of the fit</source>
        <translation>Güte der Anpassung</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::Sheet</name>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::TableLoader</name>
    <message>
        <source>Reading progress</source>
        <translation>Fortschritt des Lesens</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reading %1 (%2): %p %</source>
        <translation>Lese %1 (%2): %p %</translation>
    </message>
</context>
</TS>
