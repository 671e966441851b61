<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>EditMessages</name>
    <message>
        <source>Nodescope Delete Node</source>
        <translation>Nodescope: Knoten löschen</translation>
    </message>
    <message>
        <source>&lt;i&gt;%1&lt;/i&gt; can&apos;t be deleted.</source>
        <translation>&lt;i&gt;%1&lt;/i&gt; kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>This SoNodeKitListPart container can&apos;t be deleted.</source>
        <translation>Dieser Behälter eines SoNodeKitListPart kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>&lt;i&gt;&quot;%1&quot;&lt;/i&gt; part can&apos;t be deleted.</source>
        <translation>Der Teil &lt;i&gt;&quot;%1&quot;&lt;/i&gt; kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Nodescope Set Node</source>
        <translation>Nodescope: Knoten setzen</translation>
    </message>
    <message>
        <source>Can&apos;t set %1.</source>
        <translation>%1 kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>Knoten hinzufügen</translation>
    </message>
    <message>
        <source>Can not add this node</source>
        <translation>Dieser Knoten kann hier nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Can&apos;t copy data to clipboard. Out of memory</source>
        <translation>Die Daten passen nicht in die Zwischenablage: der Speicher reicht nicht aus</translation>
    </message>
</context>
<context>
    <name>FileMessages</name>
    <message>
        <source>Save changes </source>
        <translation>Änderungen speichern </translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>Nodescope -- Unsaved Changes</source>
        <translation>Nodescope -- Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Nodescope -- Overwrite File</source>
        <translation>Nodescope -- Datei überschreiben</translation>
    </message>
    <message>
        <source>Overwrite
&apos;%1&apos;?</source>
        <translation>»%1«
überschreiben?</translation>
    </message>
    <message>
        <source>NodescopeReadFile</source>
        <translation>Nodescope: Datei lesen</translation>
    </message>
    <message>
        <source>Nodescope -- Load File</source>
        <translation>Nodescope -- Datei laden</translation>
    </message>
    <message>
        <source>Can&apos;t load &apos;%1&apos;. 
 This file doesn&apos;t exist anymore.</source>
        <translation>»%1« kann nicht geladen werden. 
 Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>File Error Dialog</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Error creating file: </source>
        <translation>Die Datei kann nicht angelegt werden: </translation>
    </message>
    <message>
        <source>Error writing file: %1
%2
The file is as it was before.</source>
        <translation>Die Datei kann nicht geschrieben werden: %1
%2
Sie ist, wie sie vorher war.</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>Nodescope -- Save As</source>
        <translation>Nodescope -- Speichern unter</translation>
    </message>
    <message>
        <source>Nodescope</source>
        <translation>Nodescope</translation>
    </message>
    <message>
        <source>Nodescope -- %1</source>
        <translation>Nodescope -- %1</translation>
    </message>
</context>
<context>
    <name>LiveInput</name>
    <message>
        <source>Loading </source>
        <translation>Lade </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>Toggle Bookmark</source>
        <translation>Lesezeichen setzen/entfernen</translation>
    </message>
    <message>
        <source>Next Bookmark</source>
        <translation>Nächstes Lesezeichen</translation>
    </message>
    <message>
        <source>Previous Bookmark</source>
        <translation>Voriges Lesezeichen</translation>
    </message>
    <message>
        <source>Clear All Bookmarks</source>
        <translation>Alle Lesezeichen entfernen</translation>
    </message>
    <message>
        <source>Toggle Filters</source>
        <translation>Filter ein/aus</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinung</translation>
    </message>
    <message>
        <source>Callback</source>
        <translation>Rückruf</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Manipulator</source>
        <translation>Manipulator</translation>
    </message>
    <message>
        <source>Nodekit</source>
        <translation>Nodekit</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Topology</source>
        <translation>Topologie</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformation</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Eigene...</translation>
    </message>
    <message>
        <source>&amp;Explore</source>
        <translation>&amp;Erkunden</translation>
    </message>
    <message>
        <source>Explore &amp;all</source>
        <translation>&amp;Alles erkunden</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>&amp;Filter...</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>E&amp;infügen...</translation>
    </message>
    <message>
        <source>Insert &amp;clipboard</source>
        <translation>&amp;Zwischenablage einfügen</translation>
    </message>
    <message>
        <source>&amp;Set Ignored/Enable</source>
        <translation>&amp;Ignorieren/Aktivieren</translation>
    </message>
    <message>
        <source>Show &amp;All References</source>
        <translation>&amp;Alle Verweise zeigen</translation>
    </message>
    <message>
        <source>&amp;Hide All References</source>
        <translation>Alle Verweise &amp;verbergen</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Nä&amp;chster</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>V&amp;origer</translation>
    </message>
    <message>
        <source>&amp;Open Viewer</source>
        <translation>&amp;Betrachter öffnen</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>Einstellun&amp;gen...</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;About Nodescope</source>
        <translation>Ü&amp;ber Nodescope</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;TreeView</source>
        <translation>Ba&amp;um</translation>
    </message>
    <message>
        <source>&amp;?</source>
        <translation>&amp;?</translation>
    </message>
    <message>
        <source>File Tool Bar</source>
        <translation>Werkzeuge: Datei</translation>
    </message>
    <message>
        <source>Edit Tool Bar</source>
        <translation>Werkzeuge: Bearbeiten</translation>
    </message>
    <message>
        <source>Search Tool Bar</source>
        <translation>Werkzeuge: Suchen</translation>
    </message>
    <message>
        <source>Bookmark Tool Bar</source>
        <translation>Werkzeuge: Lesezeichen</translation>
    </message>
    <message>
        <source>Filter Tool Bar</source>
        <translation>Werkzeuge: Filter</translation>
    </message>
</context>
<context>
    <name>MessageDock</name>
    <message>
        <source>One problem with plug-ins: see Messages</source>
        <translation>Ein Problem mit Plug-ins: siehe Meldungen</translation>
    </message>
    <message>
        <source>%1 problems with plug-ins: see Messages</source>
        <translation>%1 Probleme mit Plug-ins: siehe Meldungen</translation>
    </message>
</context>
<context>
    <name>MessageLog</name>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>MessagePanel</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>NscFindDialog</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find What</source>
        <translation>Suchen nach</translation>
    </message>
    <message>
        <source>By Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>By Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>By Id</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Find Options</source>
        <translation>Suchoptionen</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>Groß/klein unterscheiden</translation>
    </message>
    <message>
        <source>Exact Match</source>
        <translation>Genaue Übereinstimmung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>PanelDocks</name>
    <message>
        <source>Tree View</source>
        <translation>Baum</translation>
    </message>
    <message>
        <source>Node Overview</source>
        <translation>Knotenübersicht</translation>
    </message>
    <message>
        <source>Field Watch</source>
        <translation>Beobachtete Felder</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Open Vexel SceneViewer</source>
        <translation>Vexel-Szenenbetrachter</translation>
    </message>
</context>
<context>
    <name>PanelPages</name>
    <message>
        <source>Environment</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <source>Tree View</source>
        <translation>Baum</translation>
    </message>
    <message>
        <source>Node Overview</source>
        <translation>Knotenübersicht</translation>
    </message>
    <message>
        <source>Field Watch</source>
        <translation>Beobachtete Felder</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>JPG - JPEG</source>
        <translation>JPG - JPEG</translation>
    </message>
    <message>
        <source>BMP - Windows Bitmap</source>
        <translation>BMP - Windows-Bitmap</translation>
    </message>
    <message>
        <source>TIFF - Tag Image File Format</source>
        <translation>TIFF - Tag Image File Format</translation>
    </message>
    <message>
        <source>PS - PostScript</source>
        <translation>PS - PostScript</translation>
    </message>
    <message>
        <source>RGB - SGI Image File</source>
        <translation>RGB - SGI-Bilddatei</translation>
    </message>
    <message>
        <source>PDF - using Plotkit</source>
        <translation>PDF - mit Plotkit</translation>
    </message>
    <message>
        <source>U3D - using Plotkit</source>
        <translation>U3D - mit Plotkit</translation>
    </message>
    <message>
        <source>PS - using Plotkit</source>
        <translation>PS - mit Plotkit</translation>
    </message>
    <message>
        <source>CGM - using Plotkit</source>
        <translation>CGM - mit Plotkit</translation>
    </message>
    <message>
        <source>EMF/GDI - using Plotkit</source>
        <translation>EMF/GDI - mit Plotkit</translation>
    </message>
    <message>
        <source>HPGL - using Plotkit</source>
        <translation>HPGL - mit Plotkit</translation>
    </message>
    <message>
        <source>Exporting the scene...</source>
        <translation>Die Szene wird exportiert ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Choose a filename to export under</source>
        <translation>Dateiname für den Export wählen</translation>
    </message>
</context>
<context>
    <name>PicturePrinter</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>PreferencePage</name>
    <message>
        <source>Default Value</source>
        <translation>Standardwert</translation>
    </message>
    <message>
        <source>Changed Value</source>
        <translation>Geänderter Wert</translation>
    </message>
    <message>
        <source>Node Type</source>
        <translation>Knotentyp</translation>
    </message>
    <message>
        <source>Node/Part Name</source>
        <translation>Knoten-/Teilname</translation>
    </message>
    <message>
        <source>Reference Count</source>
        <translation>Zahl der Verweise</translation>
    </message>
    <message>
        <source>Node From Field</source>
        <translation>Knoten aus Feld</translation>
    </message>
</context>
<context>
    <name>QAboutNodescopeDlg</name>
    <message>
        <source>About Nodescope</source>
        <translation>Über Nodescope</translation>
    </message>
</context>
<context>
    <name>QElementEditor</name>
    <message>
        <source>Syntax Highlighting</source>
        <translation>Hervorhebung</translation>
    </message>
    <message>
        <source>&amp;Element:</source>
        <translation>&amp;Element:</translation>
    </message>
    <message>
        <source>&amp;Family:</source>
        <translation>Sch&amp;rift:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>Alt+B</source>
        <translation>Alt+F</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>Alt+I</source>
        <translation>Alt+K</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>Alt+U</source>
        <translation>Alt+U</translation>
    </message>
    <message>
        <source>Change co&amp;lor:</source>
        <translation>Far&amp;be ändern:</translation>
    </message>
    <message>
        <source>Change color</source>
        <translation>Farbe ändern</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>&amp;Preview:</source>
        <translation>&amp;Vorschau:</translation>
    </message>
    <message>
        <source>Some Text</source>
        <translation>Beispieltext</translation>
    </message>
    <message>
        <source>&amp;Set to default</source>
        <translation>Auf &amp;Standard setzen</translation>
    </message>
    <message>
        <source>font and color of this element</source>
        <translation>für dieses Element</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
</context>
<context>
    <name>QFieldWatchPreferences</name>
    <message>
        <source>FieldWatchPreferences</source>
        <translation>Einstellungen der beobachteten Felder</translation>
    </message>
    <message>
        <source>Field Watch Item</source>
        <translation>Beobachtetes Feld</translation>
    </message>
    <message>
        <source>Syntax Highlighting</source>
        <translation>Hervorhebung</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Error report</source>
        <translation>Fehlerbericht</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Schwerer Fehler</translation>
    </message>
    <message>
        <source>The application produced a critical error, click the ignore button to debug the application, ok to exit and help to view the callstack.</source>
        <translation>In der Anwendung ist ein schwerer Fehler aufgetreten. »Ignorieren« setzt sie zur Fehlersuche fort, »OK« beendet sie, »Hilfe« zeigt die Aufrufe.</translation>
    </message>
</context>
<context>
    <name>QNodeOverviewPreferences</name>
    <message>
        <source>NodeOverviewPreferences</source>
        <translation>Einstellungen der Knotenübersicht</translation>
    </message>
    <message>
        <source>Node Overview Item</source>
        <translation>Eintrag der Knotenübersicht</translation>
    </message>
    <message>
        <source>S&amp;yntax Highlighting</source>
        <translation>H&amp;ervorhebung</translation>
    </message>
    <message>
        <source>Field &amp;Display Policy</source>
        <translation>An&amp;zeige der Felder</translation>
    </message>
    <message>
        <source>Show &amp;Catalog Parts</source>
        <translation>Katalogteile zei&amp;gen</translation>
    </message>
    <message>
        <source>Lists the parts in the catalog of a nodekit among its fields.</source>
        <translation>Führt die Teile im Katalog eines Nodekits unter seinen Feldern auf.</translation>
    </message>
</context>
<context>
    <name>QPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Alt+A</source>
        <translation>Alt+A</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ab&amp;brechen</translation>
    </message>
</context>
<context>
    <name>QTreeViewPreferences</name>
    <message>
        <source>TreeViewPreferences</source>
        <translation>Einstellungen des Baums</translation>
    </message>
    <message>
        <source>Tree View Item</source>
        <translation>Eintrag des Baums</translation>
    </message>
    <message>
        <source>Syntax Highlighting</source>
        <translation>Hervorhebung</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>this element in the tree</source>
        <translation>(im Baum)</translation>
    </message>
    <message>
        <source>Selection Policy</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Highlight selected node.</source>
        <translation>Ausgewählten Knoten hervorheben.</translation>
    </message>
    <message>
        <source>Reference Count</source>
        <translation>Zahl der Verweise</translation>
    </message>
    <message>
        <source>Real reference count for NodeKits.</source>
        <translation>Tatsächliche Zahl der Verweise bei Nodekits.</translation>
    </message>
    <message>
        <source>Counts also the places that a nodekit gives its parts in its inner graph.</source>
        <translation>Zählt auch die Plätze, die ein Nodekit seinen Teilen in seinem inneren Graphen gibt.</translation>
    </message>
</context>
<context>
    <name>QViewerPreferences</name>
    <message>
        <source>Viewer Preferences</source>
        <translation>Einstellungen des Betrachters</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>&amp;No sort Transparency</source>
        <translation>&amp;Unsortiert</translation>
    </message>
    <message>
        <source>&amp;Opaque First Transparency</source>
        <translation>&amp;Undurchsichtiges zuerst</translation>
    </message>
    <message>
        <source>&amp;Sorted object Transparency</source>
        <translation>Nach &amp;Objekten sortiert</translation>
    </message>
    <message>
        <source>&amp;Sorted pixel Transparency</source>
        <translation>Nach &amp;Pixeln sortiert</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>&amp;Edit background color...</source>
        <translation>&amp;Hintergrundfarbe ändern...</translation>
    </message>
</context>
<context>
    <name>SoCommandManager</name>
    <message>
        <source>Vexel files (*.vx *.vxz *.vx.gz)</source>
        <translation>Vexel-Dateien (*.vx *.vxz *.vx.gz)</translation>
    </message>
    <message>
        <source>All files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>open file</source>
        <translation>Datei öffnen</translation>
    </message>
</context>
<context>
    <name>SoFieldWatch</name>
    <message>
        <source>Watched fields</source>
        <translation>Beobachtete Felder</translation>
    </message>
</context>
<context>
    <name>SoNodeOverview</name>
    <message>
        <source>Node Overview</source>
        <translation>Knotenübersicht</translation>
    </message>
    <message>
        <source>Override</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Show Changed</source>
        <translation>Nur Geändertes</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Beobachten</translation>
    </message>
    <message>
        <source>&lt;b&gt; Node Name &lt;/b&gt;: </source>
        <translation>&lt;b&gt; Name &lt;/b&gt;: </translation>
    </message>
    <message>
        <source>&lt;b&gt; Node Id &lt;/b&gt;: </source>
        <translation>&lt;b&gt; Nummer &lt;/b&gt;: </translation>
    </message>
    <message>
        <source>&lt;b&gt; Node Address &lt;/b&gt;: </source>
        <translation>&lt;b&gt; Adresse &lt;/b&gt;: </translation>
    </message>
    <message>
        <source>&lt;b&gt; Node NetName &lt;/b&gt;: </source>
        <translation>&lt;b&gt; Netzname &lt;/b&gt;: </translation>
    </message>
    <message>
        <source>&lt;b&gt; Part Name &lt;/b&gt;:</source>
        <translation>&lt;b&gt; Teilname &lt;/b&gt;:</translation>
    </message>
    <message>
        <source>&lt;b&gt; Node Name &lt;/b&gt;:</source>
        <translation>&lt;b&gt; Name &lt;/b&gt;:</translation>
    </message>
    <message>
        <source>&lt;b&gt; Node Address &lt;/b&gt;: %1</source>
        <translation>&lt;b&gt; Adresse &lt;/b&gt;: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>SoNodescopeAddDialog</name>
    <message>
        <source>Appearance</source>
        <translation>Erscheinung</translation>
    </message>
    <message>
        <source>Callback</source>
        <translation>Rückruf</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Dragger</source>
        <translation>Griff</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Manipulator</source>
        <translation>Manipulator</translation>
    </message>
    <message>
        <source>NodeKit</source>
        <translation>Nodekit</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Topology</source>
        <translation>Topologie</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformation</translation>
    </message>
    <message>
        <source>Add Nodes</source>
        <translation>Knoten hinzufügen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ab&amp;brechen</translation>
    </message>
</context>
<context>
    <name>SoNodescopeList</name>
    <message>
        <source>Ignore</source>
        <translation>Ignoriert</translation>
    </message>
    <message>
        <source>This field is ignored</source>
        <translation>Dieses Feld wird ignoriert</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>This field is connected</source>
        <translation>Dieses Feld ist verbunden</translation>
    </message>
    <message>
        <source>Node Type</source>
        <translation>Knotentyp</translation>
    </message>
    <message>
        <source>Node Name</source>
        <translation>Knotenname</translation>
    </message>
    <message>
        <source>Field Type</source>
        <translation>Feldtyp</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>Feldname</translation>
    </message>
    <message>
        <source>Field Value</source>
        <translation>Feldwert</translation>
    </message>
    <message>
        <source>Node NetName</source>
        <translation>Netzname</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Standard: %1</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
</context>
<context>
    <name>SoNodescopeMainFrame</name>
    <message>
        <source>Recent &amp;Files</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Nodescope</source>
        <translation>Nodescope</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>SoNodescopeTreeView</name>
    <message>
        <source>The graph has more than %L1 rows: rows are made when a row is opened.</source>
        <translation>Der Graph hat mehr als %L1 Zeilen: Zeilen entstehen, wenn eine Zeile geöffnet wird.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Ref. Count</source>
        <translation>Verweise</translation>
    </message>
    <message>
        <source>Scene graph</source>
        <translation>Szenengraph</translation>
    </message>
</context>
<context>
    <name>SoQtFullViewer</name>
    <message>
        <source>Home</source>
        <translation>Ausgangslage</translation>
    </message>
    <message>
        <source>Set Home</source>
        <translation>Ausgangslage setzen</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Seek</source>
        <translation>Heranholen</translation>
    </message>
    <message>
        <source>Draw Style</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>As Is</source>
        <translation>Wie sie ist</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Headlight</source>
        <translation>Kopflicht</translation>
    </message>
    <message>
        <source>Decoration</source>
        <translation>Bedienelemente</translation>
    </message>
    <message>
        <source>Viewing</source>
        <translation>Kamera bewegen</translation>
    </message>
    <message>
        <source>Perspective or Parallel</source>
        <translation>Perspektive oder Parallelprojektion</translation>
    </message>
</context>
<context>
    <name>SoTreeViewState</name>
    <message>
        <source>Expand All</source>
        <translation>Alles aufklappen</translation>
    </message>
    <message>
        <source>Add to Node Overview</source>
        <translation>In die Knotenübersicht</translation>
    </message>
    <message>
        <source>Add Node</source>
        <translation>Knoten hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Save scene graph</source>
        <translation>Szenengraph &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>ViewerDecoration</name>
    <message>
        <source>Turn up and down</source>
        <translation>Auf und ab drehen</translation>
    </message>
    <message>
        <source>Turn left and right</source>
        <translation>Nach links und rechts drehen</translation>
    </message>
    <message>
        <source>Move nearer and away</source>
        <translation>Näher heran oder weiter weg</translation>
    </message>
    <message>
        <source>Pick (Esc)</source>
        <translation>Auswählen (Esc)</translation>
    </message>
    <message>
        <source>Move the camera (Esc)</source>
        <translation>Kamera bewegen (Esc)</translation>
    </message>
    <message>
        <source>Home (H)</source>
        <translation>Ausgangslage (H)</translation>
    </message>
    <message>
        <source>Set home</source>
        <translation>Ausgangslage setzen</translation>
    </message>
    <message>
        <source>View all (A)</source>
        <translation>Alles zeigen (A)</translation>
    </message>
    <message>
        <source>Seek (S)</source>
        <translation>Heranholen (S)</translation>
    </message>
    <message>
        <source>Headlight</source>
        <translation>Kopflicht</translation>
    </message>
    <message>
        <source>Perspective or parallel (P)</source>
        <translation>Perspektive oder Parallelprojektion (P)</translation>
    </message>
</context>
</TS>
