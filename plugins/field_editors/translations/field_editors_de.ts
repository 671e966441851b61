<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BitMaskWidget</name>
    <message>
        <source>Set all flags</source>
        <translation>Alle Schalter setzen</translation>
    </message>
    <message>
        <source>Set no flag</source>
        <translation>Keinen Schalter setzen</translation>
    </message>
    <message>
        <source>Bits without a name</source>
        <translation>Bits ohne Namen</translation>
    </message>
</context>
<context>
    <name>BoxWidget</name>
    <message>
        <source>Make Empty</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>The box is empty.</source>
        <translation>Der Quader ist leer.</translation>
    </message>
    <message>
        <source>Size %1, middle %2</source>
        <translation>Größe %1, Mitte %2</translation>
    </message>
</context>
<context>
    <name>ColorSwatch</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Choose another color</source>
        <translation>Eine andere Farbe wählen</translation>
    </message>
</context>
<context>
    <name>ColorText</name>
    <message>
        <source>&quot;%1&quot; is no hexadecimal digit.</source>
        <translation>„%1“ ist keine Hexadezimalziffer.</translation>
    </message>
    <message>
        <source>A color has six hexadecimal digits, not %1.</source>
        <translation>Eine Farbe hat sechs Hexadezimalziffern, nicht %1.</translation>
    </message>
</context>
<context>
    <name>ColorWidget</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadezimal</translation>
    </message>
</context>
<context>
    <name>Components</name>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 max</source>
        <translation>%1 max</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
</context>
<context>
    <name>EnumText</name>
    <message>
        <source>A name or a number is missing.</source>
        <translation>Ein Name oder eine Zahl fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of this enumeration.</source>
        <translation>„%1“ ist kein Name dieser Aufzählung.</translation>
    </message>
</context>
<context>
    <name>EnumWidget</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>FieldEditorPanel</name>
    <message>
        <source>Field Editor</source>
        <translation>Feld-Editor</translation>
    </message>
    <message>
        <source>Select a field to edit it here.</source>
        <translation>Wählen Sie ein Feld, um es hier zu bearbeiten.</translation>
    </message>
    <message>
        <source>There is no editor for fields of this type.</source>
        <translation>Für Felder dieses Typs gibt es keinen Editor.</translation>
    </message>
</context>
<context>
    <name>FieldHeader</name>
    <message>
        <source>Cut</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Cut the connection; the field keeps the value that it has now</source>
        <translation>Die Verbindung trennen; das Feld behält seinen jetzigen Wert</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Give the field its default value</source>
        <translation>Dem Feld seinen Standardwert geben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the value as text</source>
        <translation>Den Wert als Text kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste a value that was copied as text</source>
        <translation>Einen als Text kopierten Wert einfügen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Ignore the field in traversals</source>
        <translation>Das Feld beim Durchlaufen ignorieren</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>output, read-only</source>
        <translation>Ausgang, nur lesbar</translation>
    </message>
    <message>
        <source>default value</source>
        <translation>Standardwert</translation>
    </message>
    <message>
        <source>ignored</source>
        <translation>ignoriert</translation>
    </message>
    <message>
        <source>Connected from %1</source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message>
        <source>The clipboard holds no value of type %1.</source>
        <translation>Die Zwischenablage enthält keinen Wert vom Typ %1.</translation>
    </message>
</context>
<context>
    <name>FileTextWidget</name>
    <message>
        <source>This text is no value of type %1.</source>
        <translation>Dieser Text ist kein Wert vom Typ %1.</translation>
    </message>
</context>
<context>
    <name>ImageFile</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>ImageWidget</name>
    <message>
        <source>Load...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take the image from a file</source>
        <translation>Das Bild aus einer Datei laden</translation>
    </message>
    <message>
        <source>Save the image to a file</source>
        <translation>Das Bild in einer Datei speichern</translation>
    </message>
    <message>
        <source>Take the image away</source>
        <translation>Das Bild entfernen</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>RGBA</source>
        <translation>RGBA</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 x %2, %3</source>
        <translation>%1 x %2, %3</translation>
    </message>
    <message>
        <source>Load Image</source>
        <translation>Bild laden</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>gray</source>
        <translation>grau</translation>
    </message>
    <message>
        <source>gray and alpha</source>
        <translation>grau und Alpha</translation>
    </message>
</context>
<context>
    <name>ListColumns</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of type %2.</source>
        <translation>„%1“ ist kein Wert vom Typ %2.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>ListEditor</name>
    <message>
        <source>1 value</source>
        <translation>1 Wert</translation>
    </message>
    <message>
        <source>%L1 values</source>
        <translation>%L1 Werte</translation>
    </message>
</context>
<context>
    <name>ListEdits</name>
    <message>
        <source>Line %1 has %2 columns, but there are only %3 from here on.</source>
        <translation>Zeile %1 hat %2 Spalten, aber von hier an gibt es nur %3.</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
</context>
<context>
    <name>ListTable</name>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Insert a value in front of the current one (Insert)</source>
        <translation>Einen Wert vor dem aktuellen einfügen (Einfg)</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected values (Delete)</source>
        <translation>Die gewählten Werte entfernen (Entf)</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Fill the selected cells with the topmost one (Ctrl+D)</source>
        <translation>Die gewählten Zellen mit der obersten füllen (Strg+D)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected cells (Ctrl+C)</source>
        <translation>Die gewählten Zellen kopieren (Strg+C)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste cells from a spreadsheet (Ctrl+V)</source>
        <translation>Zellen aus einer Tabellenkalkulation einfügen (Strg+V)</translation>
    </message>
</context>
<context>
    <name>MatrixWidget</name>
    <message>
        <source>Translation</source>
        <translation>Verschiebung</translation>
    </message>
    <message>
        <source>Rotation in degrees</source>
        <translation>Drehung in Grad</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>The matrix is singular: it flattens space and has no inverse.</source>
        <translation>Die Matrix ist singulär: Sie drückt den Raum flach und hat keine Inverse.</translation>
    </message>
    <message>
        <source>The fourth column projects; translation, rotation and scale leave it out.</source>
        <translation>Die vierte Spalte projiziert; Verschiebung, Drehung und Skalierung lassen sie aus.</translation>
    </message>
</context>
<context>
    <name>NameText</name>
    <message>
        <source>Character %1 of the name, %2, would end it.</source>
        <translation>Zeichen %1 des Namens, %2, würde ihn beenden.</translation>
    </message>
    <message>
        <source>Character %1 of the name, %2, would be lost.</source>
        <translation>Zeichen %1 des Namens, %2, ginge verloren.</translation>
    </message>
    <message>
        <source>Character %1 of the name, %2, is half a character only.</source>
        <translation>Zeichen %1 des Namens, %2, ist nur ein halbes Zeichen.</translation>
    </message>
</context>
<context>
    <name>NameWidget</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>NumberText</name>
    <message>
        <source>A number is missing.</source>
        <translation>Eine Zahl fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not finite.</source>
        <translation>„%1“ ist nicht endlich.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number.</source>
        <translation>„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 liegt nicht zwischen %2 und %3.</translation>
    </message>
</context>
<context>
    <name>NumbersWidget</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Koppeln</translation>
    </message>
    <message>
        <source>Change all components together, in their proportions</source>
        <translation>Alle Komponenten gemeinsam und im gleichen Verhältnis ändern</translation>
    </message>
    <message>
        <source>Normalize</source>
        <translation>Normieren</translation>
    </message>
    <message>
        <source>Make the vector 1 long</source>
        <translation>Dem Vektor die Länge 1 geben</translation>
    </message>
</context>
<context>
    <name>PlaneWidget</name>
    <message>
        <source>Flip</source>
        <translation>Wenden</translation>
    </message>
    <message>
        <source>Turn the normal to the other side</source>
        <translation>Die Normale zur anderen Seite drehen</translation>
    </message>
</context>
<context>
    <name>RotationHandle</name>
    <message>
        <source>Drag to rotate</source>
        <translation>Zum Drehen ziehen</translation>
    </message>
</context>
<context>
    <name>RotationWidget</name>
    <message>
        <source>Angle in °</source>
        <translation>Winkel in °</translation>
    </message>
    <message>
        <source>in rad</source>
        <translation>in rad</translation>
    </message>
    <message>
        <source>Axis and angle</source>
        <translation>Achse und Winkel</translation>
    </message>
    <message>
        <source>About X, then Y, then Z</source>
        <translation>Um X, dann Y, dann Z</translation>
    </message>
</context>
<context>
    <name>StringWidget</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
</TS>
