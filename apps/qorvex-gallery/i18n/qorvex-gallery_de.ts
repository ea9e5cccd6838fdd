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
    <name>ColumnFigures</name>
    <message>
        <source>95 % Interval for the Mean:</source>
        <translation>95-%-Intervall des Mittelwerts:</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>without 1 empty cell</source>
        <translation>ohne 1 leere Zelle</translation>
    </message>
    <message>
        <source>without %1 empty cells</source>
        <translation>ohne %1 leere Zellen</translation>
    </message>
    <message>
        <source>1 figure needs up to %1 decimals</source>
        <translation>1 Zahl braucht bis zu %1 Nachkommastellen</translation>
    </message>
    <message>
        <source>%1 figures need up to %2 decimals</source>
        <translation>%1 Zahlen brauchen bis zu %2 Nachkommastellen</translation>
    </message>
    <message>
        <source>1 figure is too small to show a digit</source>
        <translation>1 Zahl ist zu klein, um eine Ziffer zu zeigen</translation>
    </message>
    <message>
        <source>%1 figures are too small to show a digit</source>
        <translation>%1 Zahlen sind zu klein, um eine Ziffer zu zeigen</translation>
    </message>
</context>
<context>
    <name>ColumnPlots</name>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Normal density of the same mean and standard deviation</source>
        <translation>Normalverteilung mit demselben Mittelwert und derselben Standardabweichung</translation>
    </message>
    <message>
        <source>Lower whisker</source>
        <translation>Unteres Ende</translation>
    </message>
    <message>
        <source>First quartile</source>
        <translation>Erstes Quartil</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Third quartile</source>
        <translation>Drittes Quartil</translation>
    </message>
    <message>
        <source>Upper whisker</source>
        <translation>Oberes Ende</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Normal quantile</source>
        <translation>Quantil der Normalverteilung</translation>
    </message>
    <message>
        <source>Line through the quartiles</source>
        <translation>Gerade durch die Quartile</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Lag</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Autocorrelation of %1</source>
        <translation>Autokorrelation von %1</translation>
    </message>
    <message>
        <source>95 % of independent values</source>
        <translation>95 % unabhängiger Werte</translation>
    </message>
    <message>
        <source>Residual of %1</source>
        <translation>Residuum von %1</translation>
    </message>
</context>
<context>
    <name>DistributionCurve</name>
    <message>
        <source>P(a &lt; X &lt; b)</source>
        <translation>P(a &lt; X &lt; b)</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Außerhalb</translation>
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
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>Quantile</source>
        <translation>Quantil</translation>
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
        <source>Probability</source>
        <translation>Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
</context>
<context>
    <name>Error</name>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is not a finite number</source>
        <translation>%1 ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>%1 is beyond the range of extended precision</source>
        <translation>%1 liegt außerhalb des Bereichs der 80-Bit-Zahlen</translation>
    </message>
    <message>
        <source>the cell is empty</source>
        <translation>die Zelle ist leer</translation>
    </message>
    <message>
        <source>the line is blank</source>
        <translation>die Zeile ist leer</translation>
    </message>
    <message>
        <source>there is nothing to read</source>
        <translation>es gibt nichts zu lesen</translation>
    </message>
    <message>
        <source>there is no row below the header</source>
        <translation>unter der Kopfzeile steht keine Zeile</translation>
    </message>
    <message>
        <source>the row has 1 cell where line %1 has %2</source>
        <translation>die Zeile hat 1 Zelle, Zeile %1 dagegen %2</translation>
    </message>
    <message>
        <source>the row has %1 cells where line %2 has %3</source>
        <translation>die Zeile hat %1 Zellen, Zeile %2 dagegen %3</translation>
    </message>
    <message>
        <source>the row is too long (more than 64 MiB); a closing quote may be missing</source>
        <translation>die Zeile ist zu lang (über 64 MiB); vielleicht fehlt ein schließendes Anführungszeichen</translation>
    </message>
    <message>
        <source>a line ends with CR alone; LF or CR LF is needed</source>
        <translation>eine Zeile endet nur mit CR; nötig ist LF oder CR LF</translation>
    </message>
    <message>
        <source>the quote is not closed</source>
        <translation>das Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <source>%1 follows a closing quote</source>
        <translation>%1 folgt auf ein schließendes Anführungszeichen</translation>
    </message>
    <message>
        <source>this is a binary file, not a text: byte %1 is NUL</source>
        <translation>dies ist eine Binärdatei, kein Text: Byte %1 ist NUL</translation>
    </message>
    <message>
        <source>the text is not %1 at byte %2</source>
        <translation>der Text ist bei Byte %2 kein %1</translation>
    </message>
    <message>
        <source>column %1%2: </source>
        <comment>a number, a name in brackets</comment>
        <translation>Spalte %1%2: </translation>
    </message>
</context>
<context>
    <name>MatrixTexts</name>
    <message>
        <source>none, an element is null</source>
        <translation>keine, ein Element ist leer</translation>
    </message>
    <message>
        <source>none, an element is infinite</source>
        <translation>keine, ein Element ist unendlich</translation>
    </message>
    <message>
        <source>none, A is singular</source>
        <translation>keine, A ist singulär</translation>
    </message>
    <message>
        <source>none, its elements would be beyond the range</source>
        <translation>keine, ihre Elemente lägen außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>of square matrices only</source>
        <translation>nur für quadratische Matrizen</translation>
    </message>
    <message>
        <source>B needs as many rows as A has columns: %L1</source>
        <translation>B braucht so viele Zeilen, wie A Spalten hat: %L1</translation>
    </message>
    <message>
        <source>A must be square</source>
        <translation>A muss quadratisch sein</translation>
    </message>
    <message>
        <source>B needs as many rows as A: %L1</source>
        <translation>B braucht so viele Zeilen wie A: %L1</translation>
    </message>
    <message>
        <source>none, A is empty</source>
        <translation>keine, A ist leer</translation>
    </message>
</context>
<context>
    <name>OrderTexts</name>
    <message>
        <source>there must be at least one trial</source>
        <translation>es muss mindestens einen Versuch geben</translation>
    </message>
    <message>
        <source>there are more successes than trials</source>
        <translation>es gibt mehr Erfolge als Versuche</translation>
    </message>
    <message>
        <source>%1: there are no numbers</source>
        <translation>%1: es gibt keine Zahlen</translation>
    </message>
    <message>
        <source>choose a column of numbers</source>
        <translation>wählen Sie eine Spalte mit Zahlen</translation>
    </message>
    <message>
        <source>the test compares two groups, and the labels make %L1</source>
        <translation>der Test vergleicht zwei Gruppen, und die Namen ergeben %L1</translation>
    </message>
    <message>
        <source>choose two columns</source>
        <translation>wählen Sie zwei Spalten</translation>
    </message>
    <message>
        <source>the test compares at least two samples</source>
        <translation>der Test vergleicht mindestens zwei Stichproben</translation>
    </message>
    <message>
        <source>%1: not all numbers are counts</source>
        <translation>%1: nicht alle Zahlen sind Anzahlen</translation>
    </message>
    <message>
        <source>Yates&apos; correction is for tables of 2 by 2</source>
        <translation>die Korrektur nach Yates ist für Tafeln von 2 mal 2</translation>
    </message>
</context>
<context>
    <name>PlotReader</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
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
    <name>TestTexts</name>
    <message>
        <source>The values are independent and come from a normal distribution. The more values there are, the less the form of the distribution matters.</source>
        <translation>Die Werte sind unabhängig und stammen aus einer Normalverteilung. Je mehr Werte es sind, desto weniger kommt es auf die Form der Verteilung an.</translation>
    </message>
    <message>
        <source>The values are independent and come from normal distributions. This test is sensitive to other distributions, however many values there are.</source>
        <translation>Die Werte sind unabhängig und stammen aus Normalverteilungen. Dieser Test ist gegen andere Verteilungen empfindlich, auch bei vielen Werten.</translation>
    </message>
    <message>
        <source>The counted events are independent of one another. The approximation is good if all expected counts are at least 5.</source>
        <translation>Die gezählten Ereignisse sind voneinander unabhängig. Die Näherung ist gut, wenn alle erwarteten Anzahlen mindestens 5 sind.</translation>
    </message>
    <message>
        <source>One mean (Student&apos;s t)</source>
        <translation>Ein Mittelwert (Students t)</translation>
    </message>
    <message>
        <source>The mean is %1.</source>
        <translation>Der Mittelwert ist %1.</translation>
    </message>
    <message>
        <source>The mean is not %1.</source>
        <translation>Der Mittelwert ist nicht %1.</translation>
    </message>
    <message>
        <source>The mean is less than %1.</source>
        <translation>Der Mittelwert ist kleiner als %1.</translation>
    </message>
    <message>
        <source>The mean is greater than %1.</source>
        <translation>Der Mittelwert ist größer als %1.</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Two means (Welch&apos;s t)</source>
        <translation>Zwei Mittelwerte (Welchs t)</translation>
    </message>
    <message>
        <source>The values are independent, and each sample comes from a normal distribution. The variances may differ. The more values there are, the less the form of the distributions matters.</source>
        <translation>Die Werte sind unabhängig, und jede Stichprobe stammt aus einer Normalverteilung. Die Varianzen dürfen verschieden sein. Je mehr Werte es sind, desto weniger kommt es auf die Form der Verteilungen an.</translation>
    </message>
    <message>
        <source>The first mean less the second is %1.</source>
        <translation>Der erste Mittelwert minus der zweite ist %1.</translation>
    </message>
    <message>
        <source>The first mean less the second is not %1.</source>
        <translation>Der erste Mittelwert minus der zweite ist nicht %1.</translation>
    </message>
    <message>
        <source>The first mean less the second is below %1.</source>
        <translation>Der erste Mittelwert minus der zweite ist kleiner als %1.</translation>
    </message>
    <message>
        <source>The first mean less the second is above %1.</source>
        <translation>Der erste Mittelwert minus der zweite ist größer als %1.</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Two means, equal variances (Student&apos;s t)</source>
        <translation>Zwei Mittelwerte, gleiche Varianzen (Students t)</translation>
    </message>
    <message>
        <source>The values are independent, and both samples come from normal distributions with the same variance. Use Welch&apos;s test unless you know that.</source>
        <translation>Die Werte sind unabhängig, und beide Stichproben stammen aus Normalverteilungen mit derselben Varianz. Nehmen Sie den Test von Welch, wenn Sie das nicht wissen.</translation>
    </message>
    <message>
        <source>Pairs: mean difference (Student&apos;s t)</source>
        <translation>Paare: mittlere Differenz (Students t)</translation>
    </message>
    <message>
        <source>The pairs are independent, and their differences come from a normal distribution. The more pairs there are, the less its form matters.</source>
        <translation>Die Paare sind unabhängig, und ihre Differenzen stammen aus einer Normalverteilung. Je mehr Paare es sind, desto weniger kommt es auf deren Form an.</translation>
    </message>
    <message>
        <source>The mean of the differences x − y is %1.</source>
        <translation>Der Mittelwert der Differenzen x − y ist %1.</translation>
    </message>
    <message>
        <source>The mean of the differences x − y is not %1.</source>
        <translation>Der Mittelwert der Differenzen x − y ist nicht %1.</translation>
    </message>
    <message>
        <source>The mean of the differences x − y is less than %1.</source>
        <translation>Der Mittelwert der Differenzen x − y ist kleiner als %1.</translation>
    </message>
    <message>
        <source>The mean of the differences x − y is greater than %1.</source>
        <translation>Der Mittelwert der Differenzen x − y ist größer als %1.</translation>
    </message>
    <message>
        <source>Several means (analysis of variance)</source>
        <translation>Mehrere Mittelwerte (Varianzanalyse)</translation>
    </message>
    <message>
        <source>The values are independent, and all samples come from normal distributions with the same variance.</source>
        <translation>Die Werte sind unabhängig, und alle Stichproben stammen aus Normalverteilungen mit derselben Varianz.</translation>
    </message>
    <message>
        <source>All means are equal.</source>
        <translation>Alle Mittelwerte sind gleich.</translation>
    </message>
    <message>
        <source>Some means differ.</source>
        <translation>Einige Mittelwerte sind verschieden.</translation>
    </message>
    <message>
        <source>One variance (chi-square)</source>
        <translation>Eine Varianz (Chi-Quadrat)</translation>
    </message>
    <message>
        <source>The variance is %1.</source>
        <translation>Die Varianz ist %1.</translation>
    </message>
    <message>
        <source>The variance is not %1.</source>
        <translation>Die Varianz ist nicht %1.</translation>
    </message>
    <message>
        <source>The variance is less than %1.</source>
        <translation>Die Varianz ist kleiner als %1.</translation>
    </message>
    <message>
        <source>The variance is greater than %1.</source>
        <translation>Die Varianz ist größer als %1.</translation>
    </message>
    <message>
        <source>Variance</source>
        <translation>Varianz</translation>
    </message>
    <message>
        <source>Two variances (F)</source>
        <translation>Zwei Varianzen (F)</translation>
    </message>
    <message>
        <source>The first variance is %1 times the second.</source>
        <translation>Die erste Varianz ist das %1-Fache der zweiten.</translation>
    </message>
    <message>
        <source>The first variance is not %1 times the second.</source>
        <translation>Die erste Varianz ist nicht das %1-Fache der zweiten.</translation>
    </message>
    <message>
        <source>The first variance is less than %1 times the second.</source>
        <translation>Die erste Varianz ist kleiner als das %1-Fache der zweiten.</translation>
    </message>
    <message>
        <source>The first variance is greater than %1 times the second.</source>
        <translation>Die erste Varianz ist größer als das %1-Fache der zweiten.</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Two samples by ranks (Mann-Whitney)</source>
        <translation>Zwei Stichproben nach Rängen (Mann-Whitney)</translation>
    </message>
    <message>
        <source>The values are independent, and the distributions of both samples differ in their place only. They need not be normal.</source>
        <translation>Die Werte sind unabhängig, und die Verteilungen beider Stichproben unterscheiden sich nur in ihrer Lage. Normal müssen sie nicht sein.</translation>
    </message>
    <message>
        <source>The first sample lies %1 above the second.</source>
        <translation>Die erste Stichprobe liegt um %1 über der zweiten.</translation>
    </message>
    <message>
        <source>The first sample does not lie %1 above the second.</source>
        <translation>Die erste Stichprobe liegt nicht um %1 über der zweiten.</translation>
    </message>
    <message>
        <source>The first sample lies less than %1 above the second.</source>
        <translation>Die erste Stichprobe liegt um weniger als %1 über der zweiten.</translation>
    </message>
    <message>
        <source>The first sample lies more than %1 above the second.</source>
        <translation>Die erste Stichprobe liegt um mehr als %1 über der zweiten.</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Verschiebung</translation>
    </message>
    <message>
        <source>One centre by ranks (Wilcoxon)</source>
        <translation>Ein Zentrum nach Rängen (Wilcoxon)</translation>
    </message>
    <message>
        <source>The values are independent and come from a symmetric distribution, which need not be normal.</source>
        <translation>Die Werte sind unabhängig und stammen aus einer symmetrischen Verteilung, die nicht normal sein muss.</translation>
    </message>
    <message>
        <source>The values are symmetric about %1.</source>
        <translation>Die Werte liegen symmetrisch um %1.</translation>
    </message>
    <message>
        <source>The values are symmetric about another centre than %1.</source>
        <translation>Die Werte liegen symmetrisch um ein anderes Zentrum als %1.</translation>
    </message>
    <message>
        <source>The centre of the values is less than %1.</source>
        <translation>Das Zentrum der Werte ist kleiner als %1.</translation>
    </message>
    <message>
        <source>The centre of the values is greater than %1.</source>
        <translation>Das Zentrum der Werte ist größer als %1.</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Zentrum</translation>
    </message>
    <message>
        <source>Pairs by ranks (Wilcoxon)</source>
        <translation>Paare nach Rängen (Wilcoxon)</translation>
    </message>
    <message>
        <source>The pairs are independent, and their differences come from a symmetric distribution, which need not be normal.</source>
        <translation>Die Paare sind unabhängig, und ihre Differenzen stammen aus einer symmetrischen Verteilung, die nicht normal sein muss.</translation>
    </message>
    <message>
        <source>The differences x − y are symmetric about %1.</source>
        <translation>Die Differenzen x − y liegen symmetrisch um %1.</translation>
    </message>
    <message>
        <source>The differences x − y are symmetric about another centre than %1.</source>
        <translation>Die Differenzen x − y liegen symmetrisch um ein anderes Zentrum als %1.</translation>
    </message>
    <message>
        <source>The centre of the differences x − y is less than %1.</source>
        <translation>Das Zentrum der Differenzen x − y ist kleiner als %1.</translation>
    </message>
    <message>
        <source>The centre of the differences x − y is greater than %1.</source>
        <translation>Das Zentrum der Differenzen x − y ist größer als %1.</translation>
    </message>
    <message>
        <source>One distribution (Kolmogorov-Smirnov)</source>
        <translation>Eine Verteilung (Kolmogorow-Smirnow)</translation>
    </message>
    <message>
        <source>The values are independent, and the parameters of the distribution were known beforehand. With parameters that were estimated from the values, p is too large.</source>
        <translation>Die Werte sind unabhängig, und die Parameter der Verteilung waren vorher bekannt. Bei Parametern, die aus den Werten geschätzt sind, ist p zu groß.</translation>
    </message>
    <message>
        <source>The values follow the distribution.</source>
        <translation>Die Werte folgen der Verteilung.</translation>
    </message>
    <message>
        <source>The values do not follow the distribution.</source>
        <translation>Die Werte folgen der Verteilung nicht.</translation>
    </message>
    <message>
        <source>The values tend to be larger: their distribution function lies below.</source>
        <translation>Die Werte sind eher größer: Ihre Verteilungsfunktion liegt darunter.</translation>
    </message>
    <message>
        <source>The values tend to be smaller: their distribution function lies above.</source>
        <translation>Die Werte sind eher kleiner: Ihre Verteilungsfunktion liegt darüber.</translation>
    </message>
    <message>
        <source>Two distributions (Kolmogorov-Smirnov)</source>
        <translation>Zwei Verteilungen (Kolmogorow-Smirnow)</translation>
    </message>
    <message>
        <source>The values are independent. Their distributions may have any form.</source>
        <translation>Die Werte sind unabhängig. Ihre Verteilungen dürfen jede Form haben.</translation>
    </message>
    <message>
        <source>Both samples follow the same distribution.</source>
        <translation>Beide Stichproben folgen derselben Verteilung.</translation>
    </message>
    <message>
        <source>The samples follow different distributions.</source>
        <translation>Die Stichproben folgen verschiedenen Verteilungen.</translation>
    </message>
    <message>
        <source>The first sample tends to be larger: its distribution function lies below.</source>
        <translation>Die erste Stichprobe ist eher größer: Ihre Verteilungsfunktion liegt darunter.</translation>
    </message>
    <message>
        <source>The first sample tends to be smaller: its distribution function lies above.</source>
        <translation>Die erste Stichprobe ist eher kleiner: Ihre Verteilungsfunktion liegt darüber.</translation>
    </message>
    <message>
        <source>Normality (Shapiro-Wilk)</source>
        <translation>Normalverteilung (Shapiro-Wilk)</translation>
    </message>
    <message>
        <source>The values are independent. The test takes 3 to 5000 of them.</source>
        <translation>Die Werte sind unabhängig. Der Test nimmt 3 bis 5000 davon.</translation>
    </message>
    <message>
        <source>The values follow a normal distribution.</source>
        <translation>Die Werte folgen einer Normalverteilung.</translation>
    </message>
    <message>
        <source>The values do not follow a normal distribution.</source>
        <translation>Die Werte folgen keiner Normalverteilung.</translation>
    </message>
    <message>
        <source>Counts and proportions (chi-square)</source>
        <translation>Anzahlen und Anteile (Chi-Quadrat)</translation>
    </message>
    <message>
        <source>The counts follow the proportions.</source>
        <translation>Die Anzahlen folgen den Anteilen.</translation>
    </message>
    <message>
        <source>The counts do not follow the proportions.</source>
        <translation>Die Anzahlen folgen den Anteilen nicht.</translation>
    </message>
    <message>
        <source>Table of counts (chi-square)</source>
        <translation>Tafel von Anzahlen (Chi-Quadrat)</translation>
    </message>
    <message>
        <source>Rows and columns are independent.</source>
        <translation>Zeilen und Spalten sind unabhängig.</translation>
    </message>
    <message>
        <source>Rows and columns are not independent.</source>
        <translation>Zeilen und Spalten sind nicht unabhängig.</translation>
    </message>
    <message>
        <source>Successes in trials (binomial)</source>
        <translation>Erfolge in Versuchen (binomial)</translation>
    </message>
    <message>
        <source>The trials are independent and have the same probability of success.</source>
        <translation>Die Versuche sind unabhängig und haben dieselbe Erfolgswahrscheinlichkeit.</translation>
    </message>
    <message>
        <source>The probability of success is %1.</source>
        <translation>Die Erfolgswahrscheinlichkeit ist %1.</translation>
    </message>
    <message>
        <source>The probability of success is not %1.</source>
        <translation>Die Erfolgswahrscheinlichkeit ist nicht %1.</translation>
    </message>
    <message>
        <source>The probability of success is less than %1.</source>
        <translation>Die Erfolgswahrscheinlichkeit ist kleiner als %1.</translation>
    </message>
    <message>
        <source>The probability of success is greater than %1.</source>
        <translation>Die Erfolgswahrscheinlichkeit ist größer als %1.</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Wahrscheinlichkeit</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Standard deviation</source>
        <translation>Standardabweichung</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Zellen</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Successes</source>
        <translation>Erfolge</translation>
    </message>
    <message>
        <source>Trials</source>
        <translation>Versuche</translation>
    </message>
    <message>
        <source>Proportion</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Mean of the differences</source>
        <translation>Mittelwert der Differenzen</translation>
    </message>
    <message>
        <source>Standard deviation of the differences</source>
        <translation>Standardabweichung der Differenzen</translation>
    </message>
    <message>
        <source>Sum of squares between groups</source>
        <translation>Quadratsumme zwischen den Gruppen</translation>
    </message>
    <message>
        <source>Sum of squares within groups</source>
        <translation>Quadratsumme in den Gruppen</translation>
    </message>
    <message>
        <source>Mean square between groups</source>
        <translation>Mittleres Quadrat zwischen den Gruppen</translation>
    </message>
    <message>
        <source>Mean square within groups</source>
        <translation>Mittleres Quadrat in den Gruppen</translation>
    </message>
    <message>
        <source>Coefficient of determination</source>
        <translation>Bestimmtheitsmaß</translation>
    </message>
    <message>
        <source>Residual standard deviation</source>
        <translation>Standardabweichung der Residuen</translation>
    </message>
    <message>
        <source>Difference of the means</source>
        <translation>Differenz der Mittelwerte</translation>
    </message>
    <message>
        <source>Probability, by Clopper and Pearson</source>
        <translation>Wahrscheinlichkeit nach Clopper und Pearson</translation>
    </message>
    <message>
        <source>Probability, by Wilson</source>
        <translation>Wahrscheinlichkeit nach Wilson</translation>
    </message>
    <message>
        <source>exact</source>
        <translation>exakt</translation>
    </message>
    <message>
        <source>Student&apos;s t with Welch&apos;s degrees of freedom</source>
        <translation>Students t mit Welchs Freiheitsgraden</translation>
    </message>
    <message>
        <source>normal approximation</source>
        <translation>Näherung durch die Normalverteilung</translation>
    </message>
    <message>
        <source>chi-square approximation</source>
        <translation>Näherung durch Chi-Quadrat</translation>
    </message>
    <message>
        <source>limit for large samples</source>
        <translation>Grenzwert für große Stichproben</translation>
    </message>
    <message>
        <source>the test needs at least two values</source>
        <translation>der Test braucht mindestens zwei Werte</translation>
    </message>
    <message>
        <source>the test needs at least three values</source>
        <translation>der Test braucht mindestens drei Werte</translation>
    </message>
    <message>
        <source>the values must not all be the same</source>
        <translation>die Werte dürfen nicht alle gleich sein</translation>
    </message>
    <message>
        <source>no degrees of freedom are left</source>
        <translation>es bleiben keine Freiheitsgrade</translation>
    </message>
    <message>
        <source>all counts are 0</source>
        <translation>alle Anzahlen sind 0</translation>
    </message>
    <message>
        <source>the proportions must all be greater than 0</source>
        <translation>die Anteile müssen alle größer als 0 sein</translation>
    </message>
    <message>
        <source>the table needs at least two rows and two columns</source>
        <translation>die Tafel braucht mindestens zwei Zeilen und zwei Spalten</translation>
    </message>
    <message>
        <source>a row or a column of the table holds nothing but 0</source>
        <translation>eine Zeile oder Spalte der Tafel enthält nur 0</translation>
    </message>
    <message>
        <source>the test takes at most 5000 values</source>
        <translation>der Test nimmt höchstens 5000 Werte</translation>
    </message>
</context>
<context>
    <name>TestView</name>
    <message>
        <source>Null hypothesis: %1</source>
        <translation>Nullhypothese: %1</translation>
    </message>
    <message>
        <source>Assumptions: %1</source>
        <translation>Annahmen: %1</translation>
    </message>
    <message>
        <source>p does not exist for these values.</source>
        <translation>Für diese Werte gibt es kein p.</translation>
    </message>
    <message>
        <source>Rejected: p is at most the significance level, %1. The data speak for the alternative: %2</source>
        <translation>Abgelehnt: p ist höchstens das Signifikanzniveau %1. Die Daten sprechen für die Alternative: %2</translation>
    </message>
    <message>
        <source>Not rejected: p is above the significance level, %1. The data agree with the null hypothesis, which does not prove it.</source>
        <translation>Nicht abgelehnt: p liegt über dem Signifikanzniveau %1. Die Daten passen zur Nullhypothese, was sie nicht beweist.</translation>
    </message>
    <message>
        <source>Rejected for %L1 of %L2 samples: those whose p is at most the significance level, %3.</source>
        <translation>Abgelehnt für %L1 von %L2 Stichproben: die, deren p höchstens das Signifikanzniveau %3 ist.</translation>
    </message>
    <message>
        <source>p</source>
        <translation>p</translation>
    </message>
    <message>
        <source>Statistic %1</source>
        <translation>Teststatistik %1</translation>
    </message>
    <message>
        <source>Degrees of freedom</source>
        <translation>Freiheitsgrade</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>p comes from</source>
        <translation>p stammt aus</translation>
    </message>
    <message>
        <source>%1, confidence interval of %2 %</source>
        <translation>%1, Konfidenzintervall von %2 %</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::Application</name>
    <message>
        <source>Internal error</source>
        <translation>Interner Fehler</translation>
    </message>
    <message>
        <source>An error in the program has stopped the last action. Your data are still there; save them before you go on.</source>
        <translation>Ein Fehler im Programm hat die letzte Aktion abgebrochen. Die Daten sind noch da; bitte speichern, bevor es weitergeht.</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::ColumnReport</name>
    <message>
        <source>Whole &amp;population (divide by n)</source>
        <translation>Grundgesamthei&amp;t (durch n teilen)</translation>
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
        <source>Cop&amp;y</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy all statistics as a table</source>
        <translation>Kopiert die ganze Statistik als Tabelle</translation>
    </message>
    <message>
        <source>Statistics of %1</source>
        <translation>Statistik von %1</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>auto</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::DataPage</name>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a CSV file; you can also drop one onto the page</source>
        <translation>Öffnet eine CSV-Datei; sie lässt sich auch auf die Seite ziehen</translation>
    </message>
    <message>
        <source>Michelson&apos;s determinations of the velocity of light, 1879</source>
        <translation>Michelsons Bestimmungen der Lichtgeschwindigkeit, 1879</translation>
    </message>
    <message>
        <source>(no groups)</source>
        <translation>(keine Gruppen)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Write the table with your changes to its file</source>
        <translation>Schreibt die Tabelle mit Ihren Änderungen in ihre Datei</translation>
    </message>
    <message>
        <source>E&amp;xample</source>
        <translation>Beis&amp;piel</translation>
    </message>
    <message>
        <source>Co&amp;lumn:</source>
        <translation>Spa&amp;lte:</translation>
    </message>
    <message>
        <source>&amp;Groups:</source>
        <translation>&amp;Gruppen:</translation>
    </message>
    <message>
        <source>Column %1 counts as text: “%2” in row %3 is not a number</source>
        <translation>Die Spalte %1 gilt als Text: „%2“ in Zeile %3 ist keine Zahl</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
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
        <source>Density or probabilities</source>
        <translation>Dichte oder Wahrscheinlichkeiten</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Diagram</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Pr&amp;obability</source>
        <translation>&amp;Wahrscheinlichkeit</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::FigureTable</name>
    <message>
        <source>&amp;Copy Selection</source>
        <translation>Auswahl &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Table</source>
        <translation>&amp;Tabelle kopieren</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::FormatDialog</name>
    <message>
        <source>The first row was read as names, although it contains the number %1.</source>
        <translation>Die erste Zeile wurde als Namen gelesen, obwohl sie die Zahl %1 enthält.</translation>
    </message>
    <message>
        <source>The first row was read as numbers, although %1 may be a name.</source>
        <translation>Die erste Zeile wurde als Zahlen gelesen, obwohl %1 ein Name sein kann.</translation>
    </message>
    <message>
        <source>%1 is a number only with the other decimal sign.</source>
        <translation>%1 ist nur mit dem anderen Dezimalzeichen eine Zahl.</translation>
    </message>
    <message>
        <source>%1 may be several cells.</source>
        <translation>%1 könnte mehrere Zellen sein.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>The first row has the &amp;names</source>
        <translation>Die erste Zeile enthält die &amp;Namen</translation>
    </message>
    <message>
        <source>How is %1 written?</source>
        <translation>Wie ist %1 geschrieben?</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Blanks</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Vertical bar</source>
        <translation>Senkrechter Strich</translation>
    </message>
    <message>
        <source>Point (1.5)</source>
        <translation>Punkt (1.5)</translation>
    </message>
    <message>
        <source>Comma (1,5)</source>
        <translation>Komma (1,5)</translation>
    </message>
    <message>
        <source>Cells with one of these words, and empty cells, are left out</source>
        <translation>Zellen mit einem dieser Wörter und leere Zellen bleiben weg</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message>
        <source>&amp;Decimal sign:</source>
        <translation>&amp;Dezimalzeichen:</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message>
        <source>&amp;Missing values:</source>
        <translation>&amp;Fehlende Werte:</translation>
    </message>
    <message>
        <source>The beginning</source>
        <translation>Der Anfang</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::GroupReport</name>
    <message>
        <source>Statistics of groups</source>
        <translation>Statistik der Gruppen</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 nach %2</translation>
    </message>
    <message>
        <source>%1 by %2: too many groups</source>
        <translation>%1 nach %2: zu viele Gruppen</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Standard Deviation</source>
        <translation>Standardabweichung</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>First Quartile</source>
        <translation>Erstes Quartil</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Third Quartile</source>
        <translation>Drittes Quartil</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
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
    <name>qorvex::gallery::HypothesisForm</name>
    <message>
        <source>Number of the null hypothesis</source>
        <translation>Zahl der Nullhypothese</translation>
    </message>
    <message>
        <source>Confidence level</source>
        <translation>Konfidenzniveau</translation>
    </message>
    <message>
        <source>two-sided</source>
        <translation>zweiseitig</translation>
    </message>
    <message>
        <source>less</source>
        <translation>kleiner</translation>
    </message>
    <message>
        <source>greater</source>
        <translation>größer</translation>
    </message>
    <message>
        <source>Distribution:</source>
        <translation>Verteilung:</translation>
    </message>
    <message>
        <source>Alternative:</source>
        <translation>Alternative:</translation>
    </message>
    <message>
        <source>Confidence level:</source>
        <translation>Konfidenzniveau:</translation>
    </message>
    <message>
        <source>Confidence level: %1 %2</source>
        <translation>Konfidenzniveau: %1 %2</translation>
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
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Format of the File…</source>
        <translation>Fo&amp;rmat der Datei…</translation>
    </message>
    <message>
        <source>&amp;Save Data</source>
        <translation>Daten &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>R&amp;ückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Insert Ro&amp;ws</source>
        <translation>&amp;Zeilen einfügen</translation>
    </message>
    <message>
        <source>Insert &amp;Columns</source>
        <translation>&amp;Spalten einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete Rows</source>
        <translation>Zeilen &amp;löschen</translation>
    </message>
    <message>
        <source>De&amp;lete Columns</source>
        <translation>Spalten lös&amp;chen</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::MatrixPage</name>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Matrix A</source>
        <translation>Matrix A</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Matrix B</source>
        <translation>Matrix B</translation>
    </message>
    <message>
        <source>calculating…</source>
        <translation>wird berechnet…</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>&amp;Inverse of A</source>
        <translation>&amp;Inverse von A</translation>
    </message>
    <message>
        <source>Row eche&amp;lon form of A</source>
        <translation>Zei&amp;lenstufenform von A</translation>
    </message>
    <message>
        <source>Product A × &amp;B</source>
        <translation>Pr&amp;odukt A × B</translation>
    </message>
    <message>
        <source>&amp;Solution X of A X = B</source>
        <translation>Lö&amp;sung X von A X = B</translation>
    </message>
    <message>
        <source>Change A</source>
        <translation>A ändern</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>De&amp;cimals</source>
        <translation>De&amp;zimalzahlen</translation>
    </message>
    <message>
        <source>Fr&amp;actions</source>
        <translation>Brü&amp;che</translation>
    </message>
    <message>
        <source>Properties of A</source>
        <translation>Eigenschaften von A</translation>
    </message>
    <message>
        <source>&amp;Transpose</source>
        <translation>&amp;Transponieren</translation>
    </message>
    <message>
        <source>Rows become columns</source>
        <translation>Aus Zeilen werden Spalten</translation>
    </message>
    <message>
        <source>Reci&amp;procals</source>
        <translation>&amp;Kehrwerte</translation>
    </message>
    <message>
        <source>1 divided by each element</source>
        <translation>1 durch jedes Element</translation>
    </message>
    <message>
        <source>S&amp;quares</source>
        <translation>&amp;Quadrate</translation>
    </message>
    <message>
        <source>Each element squared</source>
        <translation>Das Quadrat jedes Elements</translation>
    </message>
    <message>
        <source>Square &amp;Roots</source>
        <translation>&amp;Wurzeln</translation>
    </message>
    <message>
        <source>The square root of each element</source>
        <translation>Die Quadratwurzel jedes Elements</translation>
    </message>
    <message>
        <source>l&amp;n</source>
        <translation>l&amp;n</translation>
    </message>
    <message>
        <source>The natural logarithm of each element</source>
        <translation>Der natürliche Logarithmus jedes Elements</translation>
    </message>
    <message>
        <source>lo&amp;g10</source>
        <translation>lo&amp;g10</translation>
    </message>
    <message>
        <source>The decimal logarithm of each element</source>
        <translation>Der Zehnerlogarithmus jedes Elements</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>R&amp;ückgängig</translation>
    </message>
    <message>
        <source>Takes the last change back</source>
        <translation>Nimmt die letzte Änderung zurück</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Wied&amp;erholen</translation>
    </message>
    <message>
        <source>Makes the last change again</source>
        <translation>Macht die letzte Änderung noch einmal</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>Reads the matrix from a file without a header</source>
        <translation>Liest die Matrix aus einer Datei ohne Kopfzeile</translation>
    </message>
    <message>
        <source>E&amp;xample</source>
        <translation>Beis&amp;piel</translation>
    </message>
    <message>
        <source>A small matrix</source>
        <translation>Eine kleine Matrix</translation>
    </message>
    <message>
        <source>Use as A</source>
        <translation>Als A verwenden</translation>
    </message>
    <message>
        <source>Makes the result A</source>
        <translation>Macht das Ergebnis zu A</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
    </message>
    <message>
        <source>Writes the result with all its digits to a file</source>
        <translation>Schreibt das Ergebnis mit allen Stellen in eine Datei</translation>
    </message>
    <message>
        <source>Open a Matrix</source>
        <translation>Matrix öffnen</translation>
    </message>
    <message>
        <source>Delimited text (*.csv *.tsv *.txt);;All files (*)</source>
        <translation>Text mit Trennzeichen (*.csv *.tsv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>Inverse of A</source>
        <translation>Inverse von A</translation>
    </message>
    <message>
        <source>Result: inverse of A</source>
        <translation>Ergebnis: Inverse von A</translation>
    </message>
    <message>
        <source>Row echelon form of A</source>
        <translation>Zeilenstufenform von A</translation>
    </message>
    <message>
        <source>Result: row echelon form of A</source>
        <translation>Ergebnis: Zeilenstufenform von A</translation>
    </message>
    <message>
        <source>A × B</source>
        <translation>A × B</translation>
    </message>
    <message>
        <source>Result: product of A and B</source>
        <translation>Ergebnis: Produkt von A und B</translation>
    </message>
    <message>
        <source>X, where A X = B</source>
        <translation>X mit A X = B</translation>
    </message>
    <message>
        <source>Result: solution X of A X = B</source>
        <translation>Ergebnis: Lösung X von A X = B</translation>
    </message>
    <message>
        <source>Save the Result</source>
        <translation>Ergebnis speichern</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Durch Kommas getrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>none, the memory does not suffice</source>
        <translation>keine, der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>Determinant</source>
        <translation>Determinante</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Matrices</source>
        <translation>Matrizen</translation>
    </message>
    <message>
        <source>%L1 × %L2 elements</source>
        <translation>%L1 × %L2 Elemente</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::MatrixPanel</name>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>%L1 × %L2 elements are too many: the memory of this computer has room for %L3, such as %L4 × %L4</source>
        <translation>%L1 × %L2 Elemente sind zu viele: Der Speicher dieses Rechners reicht für %L3, zum Beispiel %L4 × %L4</translation>
    </message>
    <message>
        <source>%L1 × %L2</source>
        <translation>%L1 × %L2</translation>
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
    <name>qorvex::gallery::Page</name>
    <message>
        <source>Save the Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Save Repor&amp;t…</source>
        <translation>Beri&amp;cht speichern…</translation>
    </message>
    <message>
        <source>&amp;Print Report…</source>
        <translation>Bericht &amp;drucken…</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::PlotChooser</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Box plot</source>
        <translation>Kastendiagramm</translation>
    </message>
    <message>
        <source>Normal quantiles</source>
        <translation>Normalquantile</translation>
    </message>
    <message>
        <source>Values in order</source>
        <translation>Werte der Reihe nach</translation>
    </message>
    <message>
        <source>Autocorrelation</source>
        <translation>Autokorrelation</translation>
    </message>
    <message>
        <source>Against another column</source>
        <translation>Über einer anderen Spalte</translation>
    </message>
    <message>
        <source>Residuals of a line</source>
        <translation>Residuen einer Geraden</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>Plo&amp;t:</source>
        <translation>Diag&amp;ramm:</translation>
    </message>
    <message>
        <source>No values to show</source>
        <translation>Keine Werte</translation>
    </message>
    <message>
        <source>Cl&amp;asses:</source>
        <translation>Klass&amp;en:</translation>
    </message>
    <message>
        <source>Aga&amp;inst:</source>
        <translation>Gege&amp;n:</translation>
    </message>
    <message>
        <source>No row has a value in both columns</source>
        <translation>Keine Zeile hat in beiden Spalten einen Wert</translation>
    </message>
    <message>
        <source>Autocorrelations need two different values, and no infinite ones</source>
        <translation>Autokorrelationen brauchen zwei verschiedene Werte und keine unendlichen</translation>
    </message>
    <message>
        <source>The first %1 groups of %2</source>
        <translation>Die ersten %1 Gruppen von %2</translation>
    </message>
    <message>
        <source>A line needs rows with two different values of the other column</source>
        <translation>Eine Gerade braucht Zeilen mit zwei verschiedenen Werten der anderen Spalte</translation>
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
    <message>
        <source>Printing has failed: %1</source>
        <translation>Das Drucken ist fehlgeschlagen: %1</translation>
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
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>C&amp;lasses</source>
        <translation>K&amp;lassen</translation>
    </message>
    <message>
        <source>Moments</source>
        <translation>Momente</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::RecentFiles</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
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
        <translation>Beis&amp;piel</translation>
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
    <message>
        <source>Example</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Least-squares fit</source>
        <translation>Kleinste Quadrate</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::SampleForm</name>
    <message>
        <source>all equal</source>
        <translation>alle gleich</translation>
    </message>
    <message>
        <source>Yates&apos; correction</source>
        <translation>Korrektur nach Yates</translation>
    </message>
    <message>
        <source>columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>groups of a column</source>
        <translation>Gruppen einer Spalte</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Samples:</source>
        <translation>Stichproben:</translation>
    </message>
    <message>
        <source>Values:</source>
        <translation>Werte:</translation>
    </message>
    <message>
        <source>Second:</source>
        <translation>Zweite:</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>Namen:</translation>
    </message>
    <message>
        <source>Proportions:</source>
        <translation>Anteile:</translation>
    </message>
    <message>
        <source>Fitted parameters:</source>
        <translation>Geschätzte Parameter:</translation>
    </message>
    <message>
        <source>Successes:</source>
        <translation>Erfolge:</translation>
    </message>
    <message>
        <source>Trials:</source>
        <translation>Versuche:</translation>
    </message>
    <message>
        <source>y:</source>
        <translation>y:</translation>
    </message>
    <message>
        <source>x:</source>
        <translation>x:</translation>
    </message>
    <message>
        <source>Counts:</source>
        <translation>Anzahlen:</translation>
    </message>
    <message>
        <source>First:</source>
        <translation>Erste:</translation>
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
    <name>qorvex::gallery::SheetDocument</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
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
        <source>The pasted text</source>
        <translation>Der eingefügte Text</translation>
    </message>
    <message>
        <source>The sheet is not in a file yet</source>
        <translation>Die Tabelle ist noch in keiner Datei</translation>
    </message>
    <message>
        <source>The file is not UTF-8 and was read as Latin-1; it will be saved as UTF-8</source>
        <translation>Die Datei ist nicht UTF-8 und wurde als Latin-1 gelesen; gespeichert wird sie als UTF-8</translation>
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
        <source>table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Tabelle speichern</translation>
    </message>
    <message>
        <source>CSV files (*.csv);;Tab-separated text (*.tsv);;All files (*)</source>
        <translation>CSV-Dateien (*.csv);;Text mit Tabulatoren (*.tsv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 was %2 and is saved as UTF-8</source>
        <translation>%1 war %2 und wird als UTF-8 gespeichert</translation>
    </message>
    <message>
        <source>The columns have got names, because the first row would have been read as names</source>
        <translation>Die Spalten haben Namen bekommen, weil sonst die erste Zeile als Namen gelesen würde</translation>
    </message>
    <message>
        <source>The names in %1 are numbers; other programs may read them as a row</source>
        <translation>Die Namen in %1 sind Zahlen; andere Programme lesen sie vielleicht als Zeile</translation>
    </message>
    <message>
        <source>Changed file</source>
        <translation>Geänderte Datei</translation>
    </message>
    <message>
        <source>Another program has changed the file. Replace it?</source>
        <translation>Ein anderes Programm hat die Datei geändert. Soll sie ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>qorvex::gallery::SheetView</name>
    <message>
        <source>Add &amp;Row</source>
        <translation>Zeile h&amp;inzufügen</translation>
    </message>
    <message>
        <source>Add &amp;Column</source>
        <translation>Spalte hin&amp;zufügen</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Rename column</source>
        <translation>Spalte umbenennen</translation>
    </message>
    <message>
        <source>Name of column %1:</source>
        <translation>Name der Spalte %1:</translation>
    </message>
    <message>
        <source>Re&amp;name Column…</source>
        <translation>Spalte &amp;umbenennen…</translation>
    </message>
    <message>
        <source>Names from &amp;First Row</source>
        <translation>&amp;Namen aus der ersten Zeile</translation>
    </message>
    <message>
        <source>Type or paste values, open a file, or drop one here.</source>
        <translation>Tippen Sie Werte, fügen Sie welche ein, öffnen Sie eine Datei oder ziehen Sie eine hierher.</translation>
    </message>
    <message>
        <source>&amp;Missing Values…</source>
        <translation>&amp;Fehlende Werte…</translation>
    </message>
    <message>
        <source>Missing values</source>
        <translation>Fehlende Werte</translation>
    </message>
    <message>
        <source>Left out are empty cells and cells with these words:</source>
        <translation>Leere Zellen und Zellen mit diesen Wörtern bleiben weg:</translation>
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
<context>
    <name>qorvex::gallery::TestPage</name>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Hypothesis</source>
        <translation>Hypothese</translation>
    </message>
    <message>
        <source>One sample</source>
        <translation>Eine Stichprobe</translation>
    </message>
    <message>
        <source>Two samples</source>
        <translation>Zwei Stichproben</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paare</translation>
    </message>
    <message>
        <source>Several samples</source>
        <translation>Mehrere Stichproben</translation>
    </message>
    <message>
        <source>Counts</source>
        <translation>Anzahlen</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Assumptions: %1</source>
        <translation>Annahmen: %1</translation>
    </message>
    <message>
        <source>without 1 missing value</source>
        <translation>ohne 1 fehlenden Wert</translation>
    </message>
    <message>
        <source>without %L1 missing values</source>
        <translation>ohne %L1 fehlende Werte</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Stichproben</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Zahlen</translation>
    </message>
</context>
</TS>
