<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CellPanel</name>
    <message>
        <source>These values cannot be changed.</source>
        <translation>Diese Werte lassen sich nicht ändern.</translation>
    </message>
    <message>
        <source>%1: %2 The value stays.</source>
        <comment>name of a cell, why its text is refused</comment>
        <translation>%1: %2 Der Wert bleibt.</translation>
    </message>
    <message>
        <source>%1 cannot be changed.</source>
        <comment>name of a cell</comment>
        <translation>%1 lässt sich nicht ändern.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; cannot be stored.</source>
        <comment>name of a cell, its text</comment>
        <translation>%1: „%2“ lässt sich nicht speichern.</translation>
    </message>
    <message>
        <source>There is not enough memory for these values.</source>
        <translation>Für diese Werte reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>Too many values to copy: %1.</source>
        <translation>Zu viele Werte zum Kopieren: %1.</translation>
    </message>
    <message>
        <source>Too many values to change: %1.</source>
        <translation>Zu viele Werte zum Ändern: %1.</translation>
    </message>
    <message>
        <source>These values cannot be empty.</source>
        <translation>Diese Werte dürfen nicht leer sein.</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Fill Down</source>
        <translation>Nach unten ausfüllen</translation>
    </message>
    <message>
        <source>Fill Right</source>
        <translation>Nach rechts ausfüllen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Copy All Values</source>
        <translation>Alle Werte kopieren</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>The block does not fit. Its rows: %1, rows from here on: %2.</source>
        <translation>Der Block passt nicht. Seine Zeilen: %1, Zeilen ab hier: %2.</translation>
    </message>
    <message>
        <source>The block does not fit. Its columns: %1, columns from here on: %2.</source>
        <translation>Der Block passt nicht. Seine Spalten: %1, Spalten ab hier: %2.</translation>
    </message>
    <message>
        <source>Add Columns</source>
        <translation>Spalten addieren</translation>
    </message>
    <message>
        <source>Add Rows</source>
        <translation>Zeilen addieren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Auf null setzen</translation>
    </message>
    <message>
        <source>Common Logarithms</source>
        <translation>Dekadische Logarithmen</translation>
    </message>
    <message>
        <source>Delete Columns</source>
        <translation>Spalten löschen</translation>
    </message>
    <message>
        <source>Delete Rows</source>
        <translation>Zeilen löschen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Insert Columns</source>
        <translation>Spalten einfügen</translation>
    </message>
    <message>
        <source>Insert Rows</source>
        <translation>Zeilen einfügen</translation>
    </message>
    <message>
        <source>Inverse</source>
        <translation>Inverse</translation>
    </message>
    <message>
        <source>Replace Matrix</source>
        <translation>Matrix ersetzen</translation>
    </message>
    <message>
        <source>Linear Transformation</source>
        <translation>Lineare Transformation</translation>
    </message>
    <message>
        <source>Natural Logarithms</source>
        <translation>Natürliche Logarithmen</translation>
    </message>
    <message>
        <source>Reciprocals</source>
        <translation>Kehrwerte</translation>
    </message>
    <message>
        <source>Row Reduction</source>
        <translation>Zeilenstufenform</translation>
    </message>
    <message>
        <source>Scale Column</source>
        <translation>Spalte skalieren</translation>
    </message>
    <message>
        <source>Scale Row</source>
        <translation>Zeile skalieren</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Square Roots</source>
        <translation>Quadratwurzeln</translation>
    </message>
    <message>
        <source>Squares</source>
        <translation>Quadrate</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Vertauschen</translation>
    </message>
    <message>
        <source>Swap Columns</source>
        <translation>Spalten vertauschen</translation>
    </message>
    <message>
        <source>Swap Rows</source>
        <translation>Zeilen vertauschen</translation>
    </message>
    <message>
        <source>Transpose</source>
        <translation>Transponieren</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektor</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
</context>
<context>
    <name>TQorCustomMatrixEdit</name>
    <message>
        <source>Corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>Corner Button</source>
        <translation>Eckknopf</translation>
    </message>
    <message>
        <source>Row %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
</context>
<context>
    <name>TQorCustomEdit</name>
    <message>
        <source>%1 Escape brings back the value.</source>
        <comment>a sentence that says why a text is refused</comment>
        <translation>%1 Escape holt den Wert zurück.</translation>
    </message>
    <message>
        <source>A number is missing.</source>
        <translation>Es fehlt eine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number: the decimal separator is &quot;%2&quot;.</source>
        <translation>„%1“ ist keine Zahl: Das Dezimaltrennzeichen ist „%2“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may mean %2 or %3.</source>
        <comment>a text and two numbers</comment>
        <translation>„%1“ kann %2 oder %3 bedeuten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; divides by zero.</source>
        <translation>„%1“ teilt durch null.</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; is too large.</source>
        <translation>Der Wert von „%1“ ist zu groß.</translation>
    </message>
</context>
<context>
    <name>TQorLabelledVectorEdit</name>
    <message>
        <source>%1, %2</source>
        <comment>label of a row, name of the row</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Label of row %1</source>
        <translation>Beschriftung der Zeile %1</translation>
    </message>
</context>
<context>
    <name>TQorVectorEdit</name>
    <message>
        <source>Row %1</source>
        <translation>Zeile %1</translation>
    </message>
</context>
</TS>
