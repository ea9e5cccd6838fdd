<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Catalogue</name>
    <message>
        <source>The normal distribution</source>
        <translation>Die Normalverteilung</translation>
    </message>
    <message>
        <source>The log-normal distribution; mean and standard deviation of ln X</source>
        <translation>Die Lognormalverteilung; Mittelwert und Standardabweichung von ln X</translation>
    </message>
    <message>
        <source>The exponential distribution</source>
        <translation>Die Exponentialverteilung</translation>
    </message>
    <message>
        <source>The gamma distribution</source>
        <translation>Die Gammaverteilung</translation>
    </message>
    <message>
        <source>The chi-square distribution</source>
        <translation>Die Chi-Quadrat-Verteilung</translation>
    </message>
    <message>
        <source>Student&apos;s t distribution</source>
        <translation>Die Studentsche t-Verteilung</translation>
    </message>
    <message>
        <source>The F distribution</source>
        <translation>Die F-Verteilung</translation>
    </message>
    <message>
        <source>The beta distribution, on [0, 1] or between two ends</source>
        <translation>Die Betaverteilung, auf [0, 1] oder zwischen zwei Enden</translation>
    </message>
    <message>
        <source>The continuous uniform distribution between two ends</source>
        <translation>Die stetige Gleichverteilung zwischen zwei Enden</translation>
    </message>
    <message>
        <source>The Weibull distribution; with a negative shape the Frechet distribution</source>
        <translation>Die Weibull-Verteilung; mit negativer Form die Fréchet-Verteilung</translation>
    </message>
    <message>
        <source>The Gumbel distribution of maxima</source>
        <translation>Die Gumbel-Verteilung von Maxima</translation>
    </message>
    <message>
        <source>The logistic distribution</source>
        <translation>Die logistische Verteilung</translation>
    </message>
    <message>
        <source>The Cauchy distribution</source>
        <translation>Die Cauchy-Verteilung</translation>
    </message>
    <message>
        <source>The von Mises distribution of angles from -pi to pi</source>
        <translation>Die Von-Mises-Verteilung von Winkeln zwischen -π und π</translation>
    </message>
    <message>
        <source>The generalised inverse Gaussian distribution; density as x^(b-1) exp(-h/2 (x + 1/x)). The inverse Gaussian distribution with a mean and a shape has h = shape / mean, b = -1/2 and scale = mean</source>
        <translation>Die verallgemeinerte inverse Gauß-Verteilung; Dichte proportional zu x^(b-1) exp(-h/2 (x + 1/x)). Die inverse Gauß-Verteilung mit Mittelwert und Form hat h = Form / Mittelwert, b = -1/2 und Skala = Mittelwert</translation>
    </message>
    <message>
        <source>The binomial distribution: successes in independent trials</source>
        <translation>Die Binomialverteilung: Erfolge in unabhängigen Versuchen</translation>
    </message>
    <message>
        <source>The hypergeometric distribution: successes in a sample drawn without replacement</source>
        <translation>Die hypergeometrische Verteilung: Erfolge in einer Stichprobe ohne Zurücklegen</translation>
    </message>
    <message>
        <source>The Poisson distribution</source>
        <translation>Die Poisson-Verteilung</translation>
    </message>
    <message>
        <source>The geometric distribution: failures before the first success</source>
        <translation>Die geometrische Verteilung: Misserfolge vor dem ersten Erfolg</translation>
    </message>
    <message>
        <source>The negative binomial distribution: successes before a given number of failures</source>
        <translation>Die negative Binomialverteilung: Erfolge vor einer gegebenen Zahl von Misserfolgen</translation>
    </message>
    <message>
        <source>Uniform values, from 0 to below 1</source>
        <translation>Gleichverteilte Werte, von 0 bis unter 1</translation>
    </message>
    <message>
        <source>Normal variates</source>
        <translation>Normalverteilte Werte</translation>
    </message>
    <message>
        <source>Exponential variates</source>
        <translation>Exponentialverteilte Werte</translation>
    </message>
    <message>
        <source>Gamma variates</source>
        <translation>Gammaverteilte Werte</translation>
    </message>
    <message>
        <source>Chi-square variates</source>
        <translation>Chi-Quadrat-verteilte Werte</translation>
    </message>
    <message>
        <source>Weibull variates; with a negative shape, reciprocals of them (Frechet variates)</source>
        <translation>Weibull-verteilte Werte; mit negativer Form ihre Kehrwerte (Fréchet-verteilt)</translation>
    </message>
    <message>
        <source>Beta variates, in [0, 1] or between two ends</source>
        <translation>Betaverteilte Werte, in [0, 1] oder zwischen zwei Enden</translation>
    </message>
    <message>
        <source>Student&apos;s t variates</source>
        <translation>t-verteilte Werte (Student)</translation>
    </message>
    <message>
        <source>Cauchy variates</source>
        <translation>Cauchy-verteilte Werte</translation>
    </message>
    <message>
        <source>Log-normal variates; mean and standard deviation of ln X</source>
        <translation>Lognormalverteilte Werte; Mittelwert und Standardabweichung von ln X</translation>
    </message>
    <message>
        <source>Generalised inverse Gaussian variates; density as x^(b-1) exp(-h/2 (x + 1/x))</source>
        <translation>Verallgemeinert invers-Gauß-verteilte Werte; Dichte proportional zu x^(b-1) exp(-h/2 (x + 1/x))</translation>
    </message>
    <message>
        <source>Angles of the von Mises distribution, from -pi to pi</source>
        <translation>Winkel der Von-Mises-Verteilung, von -π bis π</translation>
    </message>
    <message>
        <source>Binomial variates: successes in independent trials</source>
        <translation>Binomialverteilte Werte: Erfolge in unabhängigen Versuchen</translation>
    </message>
    <message>
        <source>Negative binomial variates: successes before a given number of failures</source>
        <translation>Negativ binomialverteilte Werte: Erfolge vor einer gegebenen Zahl von Misserfolgen</translation>
    </message>
    <message>
        <source>Poisson variates</source>
        <translation>Poisson-verteilte Werte</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>standard deviation</source>
        <translation>Standardabweichung</translation>
    </message>
    <message>
        <source>mean, 1 / rate</source>
        <translation>Mittelwert, 1 / Rate</translation>
    </message>
    <message>
        <source>shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>degrees of freedom</source>
        <translation>Freiheitsgrade</translation>
    </message>
    <message>
        <source>degrees of freedom of the numerator</source>
        <translation>Freiheitsgrade des Zählers</translation>
    </message>
    <message>
        <source>degrees of freedom of the denominator</source>
        <translation>Freiheitsgrade des Nenners</translation>
    </message>
    <message>
        <source>first shape</source>
        <translation>erste Form</translation>
    </message>
    <message>
        <source>second shape</source>
        <translation>zweite Form</translation>
    </message>
    <message>
        <source>lower end of the support</source>
        <translation>unteres Ende des Trägers</translation>
    </message>
    <message>
        <source>upper end of the support</source>
        <translation>oberes Ende des Trägers</translation>
    </message>
    <message>
        <source>location</source>
        <translation>Lage</translation>
    </message>
    <message>
        <source>concentration</source>
        <translation>Konzentration</translation>
    </message>
    <message>
        <source>concentration h</source>
        <translation>Konzentration h</translation>
    </message>
    <message>
        <source>order b</source>
        <translation>Ordnung b</translation>
    </message>
    <message>
        <source>probability of success in each trial</source>
        <translation>Erfolgswahrscheinlichkeit jedes Versuchs</translation>
    </message>
    <message>
        <source>number of trials</source>
        <translation>Zahl der Versuche</translation>
    </message>
    <message>
        <source>size of the population</source>
        <translation>Größe der Grundgesamtheit</translation>
    </message>
    <message>
        <source>size of the sample</source>
        <translation>Größe der Stichprobe</translation>
    </message>
    <message>
        <source>successes in the population</source>
        <translation>Erfolge in der Grundgesamtheit</translation>
    </message>
    <message>
        <source>number of failures, which need not be whole</source>
        <translation>Zahl der Misserfolge, auch gebrochen</translation>
    </message>
    <message>
        <source>degrees of freedom, which need not be whole</source>
        <translation>Freiheitsgrade, auch gebrochen</translation>
    </message>
    <message>
        <source>median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>order b, at least 0</source>
        <translation>Ordnung b, mindestens 0</translation>
    </message>
    <message>
        <source>is not a finite number</source>
        <translation>ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>is not greater than 0</source>
        <translation>ist nicht größer als 0</translation>
    </message>
    <message>
        <source>is below 3.362103143112093506e-4932, the smallest number with all digits</source>
        <translation>liegt unter 3,362103143112093506e-4932, der kleinsten Zahl mit allen Stellen</translation>
    </message>
    <message>
        <source>is not from 1e-17 to 1e15</source>
        <translation>liegt nicht zwischen 1e-17 und 1e15</translation>
    </message>
    <message>
        <source>is not from 0 to 1</source>
        <translation>liegt nicht zwischen 0 und 1 (je einschließlich)</translation>
    </message>
    <message>
        <source>is not between 0 and 1</source>
        <translation>liegt nicht zwischen 0 und 1</translation>
    </message>
    <message>
        <source>is not a whole number from 0 to 9999999</source>
        <translation>ist keine ganze Zahl von 0 bis 9999999</translation>
    </message>
    <message>
        <source>is not a whole number from 0 to 2147483647</source>
        <translation>ist keine ganze Zahl von 0 bis 2147483647</translation>
    </message>
    <message>
        <source>is not a whole number from 0 to 4294967295</source>
        <translation>ist keine ganze Zahl von 0 bis 4294967295</translation>
    </message>
    <message>
        <source>is not a whole number from 0 to 9223372036854775807</source>
        <translation>ist keine ganze Zahl von 0 bis 9223372036854775807</translation>
    </message>
    <message>
        <source>is not a whole number from 0 to 18446744073709551615</source>
        <translation>ist keine ganze Zahl von 0 bis 18446744073709551615</translation>
    </message>
    <message>
        <source>--upper-end must be greater than --lower-end</source>
        <translation>--upper-end muss größer sein als --lower-end</translation>
    </message>
    <message>
        <source>--upper-end less --lower-end is beyond the range of extended precision</source>
        <translation>--upper-end minus --lower-end liegt außerhalb des Bereichs der 80-Bit-Zahlen</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>The vector is empty</source>
        <translation>Der Vektor ist leer</translation>
    </message>
    <message>
        <source>The dimensions must be the same</source>
        <translation>Die Dimensionen müssen gleich sein</translation>
    </message>
    <message>
        <source>The magnitude of a vector must not be zero</source>
        <translation>Der Betrag eines Vektors darf nicht null sein</translation>
    </message>
    <message>
        <source>The value must not be zero</source>
        <translation>Der Wert darf nicht null sein</translation>
    </message>
    <message>
        <source>The vector must not have negative elements</source>
        <translation>Der Vektor darf keine negativen Elemente haben</translation>
    </message>
    <message>
        <source>The elements of the vector must all be positive</source>
        <translation>Alle Elemente des Vektors müssen positiv sein</translation>
    </message>
    <message>
        <source>The vector must not have zero elements</source>
        <translation>Der Vektor darf kein Element null haben</translation>
    </message>
    <message>
        <source>The vector must have at least two elements</source>
        <translation>Der Vektor muss mindestens zwei Elemente haben</translation>
    </message>
    <message>
        <source>The vector must have at least three elements</source>
        <translation>Der Vektor muss mindestens drei Elemente haben</translation>
    </message>
    <message>
        <source>The vector must have at least four elements</source>
        <translation>Der Vektor muss mindestens vier Elemente haben</translation>
    </message>
    <message>
        <source>The matrix is empty or its rows differ in length</source>
        <translation>Die Matrix ist leer, oder ihre Zeilen sind verschieden lang</translation>
    </message>
    <message>
        <source>The matrix must be rectangular</source>
        <translation>Die Zeilen der Matrix müssen gleich lang sein</translation>
    </message>
    <message>
        <source>The column index is out of range</source>
        <translation>Diese Spalte gibt es nicht</translation>
    </message>
    <message>
        <source>The row index is out of range</source>
        <translation>Diese Zeile gibt es nicht</translation>
    </message>
    <message>
        <source>The columns of the first matrix must be as many as the rows of the second</source>
        <translation>Die erste Matrix muss so viele Spalten haben wie die zweite Zeilen</translation>
    </message>
    <message>
        <source>The matrix must be square</source>
        <translation>Die Matrix muss quadratisch sein</translation>
    </message>
    <message>
        <source>The matrix must not have negative elements</source>
        <translation>Die Matrix darf keine negativen Elemente haben</translation>
    </message>
    <message>
        <source>The elements of the matrix must all be positive</source>
        <translation>Alle Elemente der Matrix müssen positiv sein</translation>
    </message>
    <message>
        <source>The matrix must not have zero elements</source>
        <translation>Die Matrix darf kein Element null haben</translation>
    </message>
    <message>
        <source>The matrix has no inverse</source>
        <translation>Die Matrix hat keine Inverse</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>The median was not found</source>
        <translation>Der Median wurde nicht gefunden</translation>
    </message>
    <message>
        <source>The quartiles were not found</source>
        <translation>Die Quartile wurden nicht gefunden</translation>
    </message>
    <message>
        <source>The degrees of freedom must be greater than zero</source>
        <translation>Die Freiheitsgrade müssen größer als null sein</translation>
    </message>
    <message>
        <source>The standard deviation must be greater than zero</source>
        <translation>Die Standardabweichung muss größer als null sein</translation>
    </message>
    <message>
        <source>The values must not all be the same</source>
        <translation>Die Werte dürfen nicht alle gleich sein</translation>
    </message>
    <message>
        <source>The exponential distribution needs a positive mean and a value that is not negative</source>
        <translation>Die Exponentialverteilung braucht einen positiven Mittelwert und einen nicht negativen Wert</translation>
    </message>
    <message>
        <source>The Poisson distribution needs a positive mean</source>
        <translation>Die Poisson-Verteilung braucht einen positiven Mittelwert</translation>
    </message>
    <message>
        <source>The hypergeometric distribution needs a population and a sample of at least one, and neither sample nor successes above the population</source>
        <translation>Die hypergeometrische Verteilung braucht eine Grundgesamtheit und eine Stichprobe von mindestens eins; weder die Stichprobe noch die Erfolge dürfen über der Grundgesamtheit liegen</translation>
    </message>
    <message>
        <source>The binomial distribution needs at least one trial, no more successes than trials and a probability from 0 to 1</source>
        <translation>Die Binomialverteilung braucht mindestens einen Versuch, höchstens so viele Erfolge wie Versuche und eine Wahrscheinlichkeit von 0 bis 1</translation>
    </message>
    <message>
        <source>The binomial coefficient is too large</source>
        <translation>Der Binomialkoeffizient ist zu groß</translation>
    </message>
    <message>
        <source>The binomial coefficient cannot choose more items than there are</source>
        <translation>Es lassen sich nicht mehr Elemente auswählen, als es gibt</translation>
    </message>
    <message>
        <source>The number of permutations is too large</source>
        <translation>Die Zahl der Permutationen ist zu groß</translation>
    </message>
    <message>
        <source>A permutation cannot take more items than there are</source>
        <translation>Eine Permutation kann nicht mehr Elemente haben, als es gibt</translation>
    </message>
    <message>
        <source>The factorial is too large</source>
        <translation>Die Fakultät ist zu groß</translation>
    </message>
    <message>
        <source>The value must be at least two</source>
        <translation>Der Wert muss mindestens zwei sein</translation>
    </message>
    <message>
        <source>The value must be from 0 to 1</source>
        <translation>Der Wert muss zwischen 0 und 1 liegen, die Enden eingeschlossen</translation>
    </message>
    <message>
        <source>The value must be greater than 0 and less than 1</source>
        <translation>Der Wert muss größer als 0 und kleiner als 1 sein</translation>
    </message>
    <message>
        <source>The value must not be negative</source>
        <translation>Der Wert darf nicht negativ sein</translation>
    </message>
    <message>
        <source>The value must be greater than zero</source>
        <translation>Der Wert muss größer als null sein</translation>
    </message>
    <message>
        <source>The value is out of range</source>
        <translation>Der Wert liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>The standard deviation is invalid: it must be greater than zero</source>
        <translation>Ungültige Standardabweichung: Sie muss größer als null sein</translation>
    </message>
    <message>
        <source>The mean is invalid: it must be greater than zero</source>
        <translation>Ungültiger Mittelwert: Er muss größer als null sein</translation>
    </message>
    <message>
        <source>The vector has too few elements</source>
        <translation>Der Vektor hat zu wenige Elemente</translation>
    </message>
    <message>
        <source>The vector must have elements</source>
        <translation>Der Vektor muss Elemente haben</translation>
    </message>
    <message>
        <source>The shape parameter is too small</source>
        <translation>Der Formparameter ist zu klein</translation>
    </message>
    <message>
        <source>The shape parameter is out of range</source>
        <translation>Der Formparameter liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Floating-point division by zero</source>
        <translation>Gleitkommadivision durch null</translation>
    </message>
    <message>
        <source>Invalid floating-point operation</source>
        <translation>Ungültige Gleitkommaoperation</translation>
    </message>
    <message>
        <source>Floating-point overflow</source>
        <translation>Gleitkommaüberlauf</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large a number</source>
        <translation>„%1“ ist eine zu große Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a fraction</source>
        <translation>„%1“ ist kein Bruch</translation>
    </message>
    <message>
        <source>The amount is out of range</source>
        <translation>Der Betrag liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>The weights must be finite and must not be negative</source>
        <translation>Die Gewichte müssen endlich und dürfen nicht negativ sein</translation>
    </message>
    <message>
        <source>The weights must not all be zero</source>
        <translation>Die Gewichte dürfen nicht alle null sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an integer</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unexpected</source>
        <translation>„%1“ steht hier nicht richtig</translation>
    </message>
    <message>
        <source>The text ends too early</source>
        <translation>Der Text endet zu früh</translation>
    </message>
    <message>
        <source>%1 (character %2)</source>
        <translation>%1 (Zeichen %2)</translation>
    </message>
    <message>
        <source>The weights must add up to more than one</source>
        <translation>Die Summe der Gewichte muss größer als eins sein</translation>
    </message>
    <message>
        <source>At least two weights must be greater than zero</source>
        <translation>Mindestens zwei Gewichte müssen größer als null sein</translation>
    </message>
    <message>
        <source>The weights must be frequencies: whole numbers</source>
        <translation>Die Gewichte müssen Häufigkeiten sein: ganze Zahlen</translation>
    </message>
    <message>
        <source>The classes need a finite lower bound, a finite width greater than zero and a number of at least one</source>
        <translation>Die Klassen brauchen eine endliche untere Grenze, eine endliche Breite über null und eine Anzahl von mindestens eins</translation>
    </message>
    <message>
        <source>A value belongs to none of the classes</source>
        <translation>Ein Wert gehört zu keiner Klasse</translation>
    </message>
    <message>
        <source>No variables can have these covariances</source>
        <translation>Keine Variablen können diese Kovarianzen haben</translation>
    </message>
    <message>
        <source>Predictor %1 depends linearly on the intercept and the predictors before it</source>
        <translation>Die Einflussgröße %1 hängt linear von der Konstanten und den Einflussgrößen vor ihr ab</translation>
    </message>
    <message>
        <source>Predictor %1 depends linearly on the predictors before it</source>
        <translation>Die Einflussgröße %1 hängt linear von den Einflussgrößen vor ihr ab</translation>
    </message>
    <message>
        <source>x^%1 depends linearly on the terms before it: there are too few different x</source>
        <translation>x^%1 hängt linear von den Gliedern davor ab: Es gibt zu wenige verschiedene x</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Not enough Values for Variance</source>
        <translation>Zu wenige Werte für die Varianz</translation>
    </message>
    <message>
        <source>Not enough Values for Standard Deviation</source>
        <translation>Zu wenige Werte für die Standardabweichung</translation>
    </message>
    <message>
        <source>Not enough Values for Skew</source>
        <translation>Zu wenige Werte für die Schiefe</translation>
    </message>
    <message>
        <source>Not enough Values for Kurtosis</source>
        <translation>Zu wenige Werte für die Wölbung</translation>
    </message>
    <message>
        <source>Standard Deviation needs to be &gt; 0 for Kurtosis</source>
        <translation>Die Wölbung braucht eine Standardabweichung &gt; 0</translation>
    </message>
    <message>
        <source>Standard Deviation needs to be &gt; 0 for Skew</source>
        <translation>Die Schiefe braucht eine Standardabweichung &gt; 0</translation>
    </message>
    <message>
        <source>Number of Values:</source>
        <translation>Anzahl der Werte:</translation>
    </message>
    <message>
        <source>Maximum:</source>
        <translation>Maximum:</translation>
    </message>
    <message>
        <source>Minimum:</source>
        <translation>Minimum:</translation>
    </message>
    <message>
        <source>Range:</source>
        <translation>Spannweite:</translation>
    </message>
    <message>
        <source>Mean:</source>
        <translation>Mittelwert:</translation>
    </message>
    <message>
        <source>Mean of X Values:</source>
        <translation>Mittelwert der X-Werte:</translation>
    </message>
    <message>
        <source>Mean of Y Values:</source>
        <translation>Mittelwert der Y-Werte:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modalwert:</translation>
    </message>
    <message>
        <source>No Modal Value</source>
        <translation>Kein Modalwert</translation>
    </message>
    <message>
        <source>Median:</source>
        <translation>Median:</translation>
    </message>
    <message>
        <source>Variance:</source>
        <translation>Varianz:</translation>
    </message>
    <message>
        <source>Covariance:</source>
        <translation>Kovarianz:</translation>
    </message>
    <message>
        <source>Standard Deviation:</source>
        <translation>Standardabweichung:</translation>
    </message>
    <message>
        <source>Standard Deviation of X Values:</source>
        <translation>Standardabweichung der X-Werte:</translation>
    </message>
    <message>
        <source>Standard Deviation of Y Values:</source>
        <translation>Standardabweichung der Y-Werte:</translation>
    </message>
    <message>
        <source>Sum:</source>
        <translation>Summe:</translation>
    </message>
    <message>
        <source>Sum of Squares:</source>
        <translation>Summe der Quadrate:</translation>
    </message>
    <message>
        <source>Kurtosis:</source>
        <translation>Wölbung:</translation>
    </message>
    <message>
        <source>Skew:</source>
        <translation>Schiefe:</translation>
    </message>
    <message>
        <source>First Quartile:</source>
        <translation>Erstes Quartil:</translation>
    </message>
    <message>
        <source>Third Quartile:</source>
        <translation>Drittes Quartil:</translation>
    </message>
    <message>
        <source>Inter-Quartile Range:</source>
        <translation>Quartilsabstand:</translation>
    </message>
    <message>
        <source>Confidence Level: </source>
        <translation>Konfidenzniveau: </translation>
    </message>
    <message>
        <source>Significance Level: </source>
        <translation>Signifikanzniveau: </translation>
    </message>
    <message>
        <source>Null Hypothesis: </source>
        <translation>Nullhypothese: </translation>
    </message>
    <message>
        <source>Alternate Hypothesis: </source>
        <translation>Alternativhypothese: </translation>
    </message>
    <message>
        <source>Test Statistics: </source>
        <translation>Teststatistik: </translation>
    </message>
    <message>
        <source>Confidence Interval for the Mean: </source>
        <translation>Konfidenzintervall des Mittelwerts: </translation>
    </message>
    <message>
        <source>Confidence Interval for the Variance: </source>
        <translation>Konfidenzintervall der Varianz: </translation>
    </message>
    <message>
        <source>P-Value: </source>
        <translation>p-Wert: </translation>
    </message>
    <message>
        <source>Rejection Region: </source>
        <translation>Ablehnungsbereich: </translation>
    </message>
    <message>
        <source>Null Hypothesis is Rejected!</source>
        <translation>Die Nullhypothese wird abgelehnt!</translation>
    </message>
    <message>
        <source>Null Hypothesis is not-Rejected!</source>
        <translation>Die Nullhypothese wird nicht abgelehnt!</translation>
    </message>
    <message>
        <source>There is sufficient Statistical evidence to reject the proposal behind the Null Hypothesis</source>
        <translation>Die Daten sprechen hinreichend gegen die Annahme der Nullhypothese</translation>
    </message>
    <message>
        <source>There is insufficient Statistical evidence to reject the proposal behind the Null Hypothesis</source>
        <translation>Die Daten sprechen nicht hinreichend gegen die Annahme der Nullhypothese</translation>
    </message>
    <message>
        <source>Regression Line:</source>
        <translation>Regressionsgerade:</translation>
    </message>
    <message>
        <source>Sum of Squares Error:</source>
        <translation>Summe der Fehlerquadrate:</translation>
    </message>
    <message>
        <source>Coefficient of Determination</source>
        <translation>Bestimmtheitsmaß</translation>
    </message>
    <message>
        <source>Coefficient of Correlation</source>
        <translation>Korrelationskoeffizient</translation>
    </message>
</context>
</TS>
