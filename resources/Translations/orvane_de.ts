<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddCurveOperation</name>
    <message>
        <source>Add Curve</source>
        <translation>Kurve hinzufügen</translation>
    </message>
</context>
<context>
    <name>AddGeometryOperation</name>
    <message>
        <source>Add Geometry</source>
        <translation>Geometrie hinzufügen</translation>
    </message>
</context>
<context>
    <name>CurveTools</name>
    <message>
        <source>There is such a curve already.</source>
        <translation>Eine solche Kurve gibt es schon.</translation>
    </message>
</context>
<context>
    <name>DeleteCurveOperation</name>
    <message>
        <source>Delete Curve</source>
        <translation>Kurve löschen</translation>
    </message>
</context>
<context>
    <name>DeleteGeometryOperation</name>
    <message>
        <source>Delete Geometry</source>
        <translation>Geometrie löschen</translation>
    </message>
</context>
<context>
    <name>DrawOnOperation</name>
    <message>
        <source>Choose Mesh to Draw On</source>
        <translation>Zeichennetz wählen</translation>
    </message>
</context>
<context>
    <name>DrawTool</name>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Drag over the surface to draw a curve; it closes when it ends near its start; Enter ends it, Esc gives it up.</source>
        <translation>Ziehen Sie über die Oberfläche, um eine Kurve zu zeichnen; endet sie nahe ihrem Anfang, schließt sie sich; Eingabe beendet, Esc verwirft.</translation>
    </message>
    <message>
        <source>There is no visible mesh to draw on.</source>
        <translation>Es ist kein Netz sichtbar, auf dem Sie zeichnen könnten.</translation>
    </message>
</context>
<context>
    <name>EditCurveOperation</name>
    <message>
        <source>Edit Curve</source>
        <translation>Kurve bearbeiten</translation>
    </message>
</context>
<context>
    <name>EraseTool</name>
    <message>
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>Drag over curves to rub parts of them out; Enter ends it, Esc gives it up.</source>
        <translation>Ziehen Sie über Kurven, um Teile davon wegzuradieren; Eingabe beendet, Esc verwirft.</translation>
    </message>
</context>
<context>
    <name>ExtendTool</name>
    <message>
        <source>Extend</source>
        <translation>Verlängern</translation>
    </message>
    <message>
        <source>Drag from an end of a curve to draw on from there; back at its other end it closes; Enter ends it, Esc gives it up.</source>
        <translation>Ziehen Sie vom Ende einer Kurve aus, um dort weiterzuzeichnen; am anderen Ende angekommen, schließt sie sich; Eingabe beendet, Esc verwirft.</translation>
    </message>
    <message>
        <source>Begin at an end of an open curve.</source>
        <translation>Beginnen Sie am Ende einer offenen Kurve.</translation>
    </message>
    <message>
        <source>This curve does not lie on the mesh that is drawn on.</source>
        <translation>Diese Kurve liegt nicht auf dem Netz, auf dem gezeichnet wird.</translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>%1 - Help</source>
        <translation>%1 – Hilfe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Search all pages</source>
        <translation>Alle Seiten durchsuchen</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
</context>
<context>
    <name>JoinTool</name>
    <message>
        <source>Join</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Drag from an end of a curve to another end to make them one, or press Enter to join two selected curves; Esc gives the drag up.</source>
        <translation>Ziehen Sie vom Ende einer Kurve zu einem anderen Ende, um sie zu verbinden, oder drücken Sie Eingabe für zwei ausgewählte Kurven; Esc bricht das Ziehen ab.</translation>
    </message>
    <message>
        <source>Begin at an end of an open curve.</source>
        <translation>Beginnen Sie am Ende einer offenen Kurve.</translation>
    </message>
    <message>
        <source>Select two open curves to join them.</source>
        <translation>Wählen Sie zwei offene Kurven aus, um sie zu verbinden.</translation>
    </message>
</context>
<context>
    <name>Kernel</name>
    <message>
        <source>Nothing was made</source>
        <translation>Es wurde nichts erzeugt</translation>
    </message>
</context>
<context>
    <name>LoopTool</name>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Click a limb for the loop around it, or drag along it for a loop square to the drag; Esc gives it up.</source>
        <translation>Klicken Sie auf ein Glied für eine Schleife darum herum, oder ziehen Sie daran entlang für eine Schleife quer zum Strich; Esc verwirft.</translation>
    </message>
    <message>
        <source>Begin on the mesh to lay a loop.</source>
        <translation>Beginnen Sie auf dem Netz, um eine Schleife zu legen.</translation>
    </message>
    <message>
        <source>No loop closes around the mesh here.</source>
        <translation>Hier schließt sich keine Schleife um das Netz.</translation>
    </message>
</context>
<context>
    <name>MeshFault</name>
    <message>
        <source>high-valence vertex</source>
        <translation>Eckpunkt mit zu vielen Kanten</translation>
    </message>
    <message>
        <source>edge shared by more than two faces</source>
        <translation>Kante an mehr als zwei Flächen</translation>
    </message>
    <message>
        <source>vertex shared by separate fans of faces</source>
        <translation>Eckpunkt an getrennten Fächern</translation>
    </message>
    <message>
        <source>two-sided face</source>
        <translation>Fläche mit zwei Kanten</translation>
    </message>
    <message>
        <source>face of more than 16 sides</source>
        <translation>Fläche mit mehr als 16 Seiten</translation>
    </message>
    <message>
        <source>vertex of more than two boundary edges</source>
        <translation>Eckpunkt mit mehr als zwei Randkanten</translation>
    </message>
    <message>
        <source>interior vertex of valence two</source>
        <translation>innerer Eckpunkt mit nur zwei Kanten</translation>
    </message>
    <message>
        <source>zero-length edge</source>
        <translation>Kante der Länge null</translation>
    </message>
    <message>
        <source>lamina face</source>
        <translation>deckungsgleiche Fläche</translation>
    </message>
    <message>
        <source>face across a UV tile boundary</source>
        <translation>Fläche über eine UV-Kachelgrenze</translation>
    </message>
    <message>
        <source>face without UVs</source>
        <translation>Fläche ohne UVs</translation>
    </message>
    <message>
        <source>degenerate face</source>
        <translation>entartete Fläche</translation>
    </message>
    <message>
        <source>vertex %1</source>
        <translation>Eckpunkt %1</translation>
    </message>
    <message>
        <source>edge %1-%2</source>
        <translation>Kante %1-%2</translation>
    </message>
    <message>
        <source>polygon %1 (mesh face %2)</source>
        <translation>Polygon %1 (Netzfläche %2)</translation>
    </message>
    <message>
        <source>%1: %2, the first is %3</source>
        <translation>%1: %2, zuerst %3</translation>
    </message>
</context>
<context>
    <name>MoveTool</name>
    <message>
        <source>Move Points</source>
        <translation>Punkte verschieben</translation>
    </message>
    <message>
        <source>Drag a curve to pull it along the surface, softly to both sides; Shift moves all of it, Enter ends it, Esc gives it up.</source>
        <translation>Ziehen Sie an einer Kurve, um sie auf der Oberfläche zu verschieben, nach beiden Seiten weich auslaufend; Umschalt verschiebt sie ganz, Eingabe beendet, Esc verwirft.</translation>
    </message>
</context>
<context>
    <name>ProjectOperation</name>
    <message>
        <source>Put onto Source</source>
        <translation>Auf die Vorlage setzen</translation>
    </message>
</context>
<context>
    <name>RelaxOperation</name>
    <message>
        <source>Smooth along Source</source>
        <translation>Entlang der Vorlage glätten</translation>
    </message>
</context>
<context>
    <name>RenameOperation</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
</context>
<context>
    <name>ReshapeOperation</name>
    <message>
        <source>the source is no longer in the scene</source>
        <translation>die Vorlage ist nicht mehr in der Szene</translation>
    </message>
    <message>
        <source>a mesh cannot be its own source</source>
        <translation>ein Netz kann nicht seine eigene Vorlage sein</translation>
    </message>
    <message>
        <source>the source is hidden</source>
        <translation>die Vorlage ist ausgeblendet</translation>
    </message>
    <message>
        <source>the source has no faces</source>
        <translation>die Vorlage hat keine Flächen</translation>
    </message>
    <message>
        <source>the mesh has no vertices</source>
        <translation>das Netz hat keine Eckpunkte</translation>
    </message>
    <message>
        <source>the mesh is damaged</source>
        <translation>das Netz ist beschädigt</translation>
    </message>
    <message>
        <source>every vertex is in its place already</source>
        <translation>alle Eckpunkte sind schon an ihrem Platz</translation>
    </message>
</context>
<context>
    <name>SectionTool</name>
    <message>
        <source>Section Line</source>
        <translation>Schnittlinie</translation>
    </message>
    <message>
        <source>Drag a straight line across the model to cut it there; Shift takes the whole loop, Enter ends it, Esc gives it up.</source>
        <translation>Ziehen Sie eine gerade Linie quer über das Modell, um es dort zu schneiden; Umschalt nimmt die ganze Schleife, Eingabe beendet, Esc verwirft.</translation>
    </message>
    <message>
        <source>There is no visible mesh to cut.</source>
        <translation>Es ist kein Netz sichtbar, das Sie schneiden könnten.</translation>
    </message>
</context>
<context>
    <name>SelectAllOperation</name>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>SelectOperation</name>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>SelectTool</name>
    <message>
        <source>Lasso</source>
        <translation>Lasso</translation>
    </message>
    <message>
        <source>Draw around curves to select them; Shift adds, Ctrl removes, Esc gives it up.</source>
        <translation>Umfahren Sie Kurven, um sie auszuwählen; Umschalt fügt hinzu, Strg nimmt weg, Esc verwirft.</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Click a curve or drag a box to select; Shift adds, Ctrl removes, Esc gives it up.</source>
        <translation>Klicken Sie auf eine Kurve oder ziehen Sie einen Rahmen auf, um auszuwählen; Umschalt fügt hinzu, Strg nimmt weg, Esc verwirft.</translation>
    </message>
</context>
<context>
    <name>ShowOperation</name>
    <message>
        <source>Show or Hide</source>
        <translation>Ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>SmoothTool</name>
    <message>
        <source>Smooth</source>
        <translation>Glätten</translation>
    </message>
    <message>
        <source>Drag over curves to smooth them, or press Enter to smooth the selected ones; Esc gives the drag up.</source>
        <translation>Ziehen Sie über Kurven, um sie zu glätten, oder drücken Sie Eingabe für die ausgewählten; Esc bricht das Ziehen ab.</translation>
    </message>
</context>
<context>
    <name>TransformOperation</name>
    <message>
        <source>the transformation flattens the geometry or leads too far</source>
        <translation>Geometrie würde flach gedrückt oder zu weit versetzt</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformieren</translation>
    </message>
</context>
<context>
    <name>UndoStep</name>
    <message>
        <source>Show Curves</source>
        <translation>Kurven einblenden</translation>
    </message>
    <message>
        <source>Hide Curves</source>
        <translation>Kurven ausblenden</translation>
    </message>
    <message>
        <source>Duplicate Curves</source>
        <translation>Kurven duplizieren</translation>
    </message>
    <message>
        <source>Mirror Curves</source>
        <translation>Kurven spiegeln</translation>
    </message>
    <message>
        <source>Close Curves</source>
        <translation>Kurven schließen</translation>
    </message>
    <message>
        <source>Open Curves</source>
        <translation>Kurven öffnen</translation>
    </message>
    <message>
        <source>Reverse Curves</source>
        <translation>Kurven umkehren</translation>
    </message>
    <message>
        <source>Space Evenly</source>
        <translation>Gleichmäßig verteilen</translation>
    </message>
    <message>
        <source>Smooth Curves</source>
        <translation>Kurven glätten</translation>
    </message>
    <message>
        <source>Join Curves</source>
        <translation>Kurven verbinden</translation>
    </message>
    <message>
        <source>Draw Stroke</source>
        <translation>Strich zeichnen</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>Extend Curve</source>
        <translation>Kurve verlängern</translation>
    </message>
    <message>
        <source>Close Curve</source>
        <translation>Kurve schließen</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Move Points</source>
        <translation>Punkte verschieben</translation>
    </message>
    <message>
        <source>Section Line</source>
        <translation>Schnittlinie</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Glätten</translation>
    </message>
</context>
<context>
    <name>orvane::AboutDialog</name>
    <message>
        <source>found</source>
        <translation>gefunden</translation>
    </message>
    <message>
        <source>loaded</source>
        <translation>geladen</translation>
    </message>
    <message>
        <source>at work</source>
        <translation>in Betrieb</translation>
    </message>
    <message>
        <source>not used: %1</source>
        <translation>nicht verwendet: %1</translation>
    </message>
    <message>
        <source>Built %1</source>
        <translation>Erstellt: %1</translation>
    </message>
    <message>
        <source>A bench to draw curves on meshes.</source>
        <translation>Eine Werkbank zum Zeichnen von Kurven auf Netzen.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>None was found.</source>
        <translation>Es wurde keines gefunden.</translation>
    </message>
    <message>
        <source>About Orvane</source>
        <translation>Über Orvane</translation>
    </message>
</context>
<context>
    <name>orvane::Autosave</name>
    <message>
        <source>unsaved work cannot be kept there; expected a folder that can be written.</source>
        <translation>nicht gespeicherte Arbeit kann dort nicht gesichert werden; erwartet wird ein beschreibbarer Ordner.</translation>
    </message>
    <message>
        <source>another window has taken this work up.</source>
        <translation>ein anderes Fenster hat diese Arbeit übernommen.</translation>
    </message>
</context>
<context>
    <name>orvane::CommandBar</name>
    <message>
        <source>Type a recorded command and press Enter</source>
        <translation>Aufgezeichneten Befehl eintippen und Eingabe drücken</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>Macro...</source>
        <translation>Makro...</translation>
    </message>
    <message>
        <source>What was recorded, to save, edit and replay</source>
        <translation>Was aufgezeichnet wurde: zum Speichern, Bearbeiten und Wiedergeben</translation>
    </message>
    <message>
        <source>C&amp;ommand:</source>
        <translation>B&amp;efehl:</translation>
    </message>
</context>
<context>
    <name>orvane::CurveCommandGroup</name>
    <message>
        <source>&amp;Finish Stroke</source>
        <translation>&amp;Strich beenden</translation>
    </message>
    <message>
        <source>End the stroke in hand.</source>
        <translation>Den laufenden Strich beenden.</translation>
    </message>
    <message>
        <source>&amp;Give Up Stroke</source>
        <translation>Strich ver&amp;werfen</translation>
    </message>
    <message>
        <source>Forget the stroke in hand.</source>
        <translation>Den laufenden Strich verwerfen.</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Copy the selected curves.</source>
        <translation>Die ausgewählten Kurven kopieren.</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>Make one curve of the two selected ones.</source>
        <translation>Aus den zwei ausgewählten Kurven eine machen.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the selected curves.</source>
        <translation>Die ausgewählten Kurven schließen.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open the selected closed curves.</source>
        <translation>Die ausgewählten geschlossenen Kurven öffnen.</translation>
    </message>
    <message>
        <source>&amp;Smooth</source>
        <translation>&amp;Glätten</translation>
    </message>
    <message>
        <source>Smooth the selected curves along the surface.</source>
        <translation>Die ausgewählten Kurven entlang der Oberfläche glätten.</translation>
    </message>
    <message>
        <source>Space &amp;Evenly</source>
        <translation>Gleich&amp;mäßig verteilen</translation>
    </message>
    <message>
        <source>Space the points of the selected curves anew.</source>
        <translation>Die Punkte der ausgewählten Kurven neu verteilen.</translation>
    </message>
    <message>
        <source>&amp;Reverse</source>
        <translation>Richtung &amp;umkehren</translation>
    </message>
    <message>
        <source>Turn the direction of the selected curves.</source>
        <translation>Die Richtung der ausgewählten Kurven umkehren.</translation>
    </message>
    <message>
        <source>Across %1</source>
        <translation>Entlang %1</translation>
    </message>
    <message>
        <source>Add the mirror images of the selected curves.</source>
        <translation>Die Spiegelbilder der ausgewählten Kurven hinzufügen.</translation>
    </message>
    <message>
        <source>&amp;Mirror Selected</source>
        <translation>Auswahl s&amp;piegeln</translation>
    </message>
    <message>
        <source>What is drawn appears on the other side, too.</source>
        <translation>Was Sie zeichnen, erscheint auch auf der anderen Seite.</translation>
    </message>
    <message>
        <source>Mirror &amp;While Drawing</source>
        <translation>&amp;Beim Zeichnen spiegeln</translation>
    </message>
    <message>
        <source>&amp;Hide Selected</source>
        <translation>&amp;Auswahl ausblenden</translation>
    </message>
    <message>
        <source>Hide the selected curves; tools pass them by.</source>
        <translation>Die ausgewählten Kurven ausblenden; Werkzeuge lassen sie unberührt.</translation>
    </message>
    <message>
        <source>Hide the curves that are not selected.</source>
        <translation>Die nicht ausgewählten Kurven ausblenden.</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>Alle &amp;einblenden</translation>
    </message>
    <message>
        <source>Show all curves.</source>
        <translation>Alle Kurven einblenden.</translation>
    </message>
    <message>
        <source>Hide O&amp;thers</source>
        <translation>Üb&amp;rige ausblenden</translation>
    </message>
</context>
<context>
    <name>orvane::Document</name>
    <message>
        <source>an operation is still running; expected to be asked after it.</source>
        <translation>ein Arbeitsschritt läuft noch; versuchen Sie es danach erneut.</translation>
    </message>
    <message>
        <source>faces with fewer than three different corners were left out: %1.</source>
        <translation>Flächen mit weniger als drei verschiedenen Ecken wurden weggelassen: %1.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>no object in it can be read; the file is damaged.</source>
        <translation>kein Objekt darin ist lesbar; die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>its vertices are at no finite places.</source>
        <translation>die Koordinaten der Eckpunkte sind nicht endlich.</translation>
    </message>
    <message>
        <source>there is no mesh to put the curves on; expected one to be opened before.</source>
        <translation>es gibt kein Netz für die Kurven; öffnen Sie zuerst eines.</translation>
    </message>
    <message>
        <source>the curves are too large; expected places that numbers can hold.</source>
        <translation>die Kurven sind zu groß; erwartet werden darstellbare Koordinaten.</translation>
    </message>
    <message>
        <source>Curves imported: %1. Points on &quot;%2&quot;: %3 of %4.</source>
        <translation>Importierte Kurven: %1. Punkte auf „%2“: %3 von %4.</translation>
    </message>
    <message>
        <source>it was left alone; expected one scene at a time.</source>
        <translation>nicht geöffnet; erwartet wird nur eine Szene auf einmal.</translation>
    </message>
    <message>
        <source>The scene has no file yet; expected a name to save it under.</source>
        <translation>Die Szene hat noch keine Datei; erwartet wird ein Name, unter dem sie gespeichert wird.</translation>
    </message>
    <message>
        <source>scenes are not saved under this name; expected one that ends in .orvane.</source>
        <translation>unter diesem Namen werden Szenen nicht gespeichert; erwartet wird einer, der auf .orvane endet.</translation>
    </message>
</context>
<context>
    <name>orvane::EditCommands</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take the last step back.</source>
        <translation>Den letzten Schritt zurücknehmen.</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Do again what was taken back.</source>
        <translation>Den zurückgenommenen Schritt wiederholen.</translation>
    </message>
    <message>
        <source>Select &amp;All Curves</source>
        <translation>&amp;Alle Kurven auswählen</translation>
    </message>
    <message>
        <source>Select all curves that are shown.</source>
        <translation>Alle eingeblendeten Kurven auswählen.</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Keine auswählen</translation>
    </message>
    <message>
        <source>Select no curve.</source>
        <translation>Keine Kurve auswählen.</translation>
    </message>
    <message>
        <source>&amp;Invert Selection</source>
        <translation>A&amp;uswahl umkehren</translation>
    </message>
    <message>
        <source>Select the other curves.</source>
        <translation>Die anderen Kurven auswählen.</translation>
    </message>
    <message>
        <source>Rename what is current in the scene list.</source>
        <translation>Das aktuelle Objekt der Szenenliste umbenennen.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the selected curves; in the scene list, all selected rows.</source>
        <translation>Die ausgewählten Kurven löschen; in der Szenenliste alle ausgewählten Zeilen.</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>Navigation, colours, language and more.</source>
        <translation>Navigation, Farben, Sprache und mehr.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen %1</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Not undone: %1</source>
        <translation>Nicht rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Not done again: %1</source>
        <translation>Nicht wiederholt: %1</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>U&amp;mbenennen</translation>
    </message>
</context>
<context>
    <name>orvane::FileCommands</name>
    <message>
        <source>All that can be opened (*.orvane *.obj *.ply *.stl *.gltf *.glb *.fbx *.dae *.3ds *.off *.json)</source>
        <translation>Alles, was sich öffnen lässt (*.orvane *.obj *.ply *.stl *.gltf *.glb *.fbx *.dae *.3ds *.off *.json)</translation>
    </message>
    <message>
        <source>Scenes (*.orvane)</source>
        <translation>Szenen (*.orvane)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the changes to &quot;%1&quot;?</source>
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>What is not saved is lost.</source>
        <translation>Was Sie nicht speichern, geht verloren.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;Nicht speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Unsaved work was found.</source>
        <translation>Es wurde nicht gespeicherte Arbeit gefunden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, kept on %2, was not saved before the program ended.</source>
        <translation>„%1“, gesichert am %2, wurde vor dem Ende des Programms nicht gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save Scene As</source>
        <translation>Szene speichern unter</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Begin with an empty scene.</source>
        <translation>Mit einer leeren Szene beginnen.</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open a mesh or a scene, or add curves.</source>
        <translation>Ein Netz oder eine Szene öffnen oder Kurven hinzufügen.</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Open E&amp;xample</source>
        <translation>Beis&amp;piel öffnen</translation>
    </message>
    <message>
        <source>Open the bundled head with curves on it.</source>
        <translation>Den mitgelieferten Kopf mit Kurven öffnen.</translation>
    </message>
    <message>
        <source>Save the scene.</source>
        <translation>Die Szene speichern.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the scene under another name.</source>
        <translation>Die Szene unter einem anderen Namen speichern.</translation>
    </message>
    <message>
        <source>&amp;Import Mesh...</source>
        <translation>Netz &amp;importieren...</translation>
    </message>
    <message>
        <source>Add a mesh to the scene.</source>
        <translation>Ein Netz zur Szene hinzufügen.</translation>
    </message>
    <message>
        <source>Import &amp;Curves...</source>
        <translation>&amp;Kurven importieren...</translation>
    </message>
    <message>
        <source>Put the curves of a file onto the mesh.</source>
        <translation>Die Kurven einer Datei auf das Netz legen.</translation>
    </message>
    <message>
        <source>&amp;Export Mesh...</source>
        <translation>Netz &amp;exportieren...</translation>
    </message>
    <message>
        <source>Write the selected mesh, or else the new one.</source>
        <translation>Das ausgewählte Netz schreiben, sonst das neue.</translation>
    </message>
    <message>
        <source>Export C&amp;urves...</source>
        <translation>Kurven e&amp;xportieren...</translation>
    </message>
    <message>
        <source>Write the selected curves, or else all.</source>
        <translation>Die ausgewählten Kurven schreiben, sonst alle.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close the window.</source>
        <translation>Das Fenster schließen.</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Import Mesh</source>
        <translation>Netz importieren</translation>
    </message>
    <message>
        <source>Import Curves</source>
        <translation>Kurven importieren</translation>
    </message>
    <message>
        <source>Curves (*.json *.obj)</source>
        <translation>Kurven (*.json *.obj)</translation>
    </message>
    <message>
        <source>Export Mesh</source>
        <translation>Netz exportieren</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>Export Curves</source>
        <translation>Kurven exportieren</translation>
    </message>
    <message>
        <source>That is not possible right now.</source>
        <translation>Das ist gerade nicht möglich.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>orvane::HelpBrowser</name>
    <message>
        <source>A page&apos;s name holds no folder.</source>
        <translation>Der Name einer Seite enthält keinen Ordner.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source># No help on this yet

There is no page for %1. %2</source>
        <translation># Noch keine Hilfe dazu

Es gibt keine Seite für %1. %2</translation>
    </message>
</context>
<context>
    <name>orvane::HelpCommands</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>How to work here.</source>
        <translation>Wie Sie hier arbeiten.</translation>
    </message>
    <message>
        <source>Help on the &amp;Tool</source>
        <translation>Hilfe zum &amp;Werkzeug</translation>
    </message>
    <message>
        <source>How the tool in hand works.</source>
        <translation>Wie das aktuelle Werkzeug funktioniert.</translation>
    </message>
    <message>
        <source>&amp;Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>All keys and drags at a glance.</source>
        <translation>Alle Tasten und Mausgesten auf einen Blick.</translation>
    </message>
    <message>
        <source>&amp;About Orvane</source>
        <translation>Ü&amp;ber Orvane</translation>
    </message>
    <message>
        <source>The version, and the plug-ins that are loaded.</source>
        <translation>Die Version und die geladenen Plug-ins.</translation>
    </message>
</context>
<context>
    <name>orvane::HudLine</name>
    <message>
        <source>%1 faces</source>
        <translation>%1 Flächen</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 Bilder/s</translation>
    </message>
</context>
<context>
    <name>orvane::LogWindow</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>orvane::MacroDialog</name>
    <message>
        <source>Commands (*.txt);;All files (*)</source>
        <translation>Befehle (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>&amp;Recorded commands, one a line:</source>
        <translation>&amp;Aufgezeichnete Befehle, einer je Zeile:</translation>
    </message>
    <message>
        <source>Re&amp;play</source>
        <translation>&amp;Wiedergeben</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Save Macro</source>
        <translation>Makro speichern</translation>
    </message>
    <message>
        <source>Open Macro</source>
        <translation>Makro öffnen</translation>
    </message>
</context>
<context>
    <name>orvane::MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Curves</source>
        <translation>&amp;Kurven</translation>
    </message>
    <message>
        <source>&amp;Mesh</source>
        <translation>&amp;Netz</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>View of the scene</source>
        <translation>Ansicht der Szene</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Type a command.</source>
        <translation>Einen Befehl eintippen.</translation>
    </message>
    <message>
        <source>What was recorded, to save, edit and replay.</source>
        <translation>Was aufgezeichnet wurde: zum Speichern, Bearbeiten und Wiedergeben.</translation>
    </message>
    <message>
        <source>What was logged.</source>
        <translation>Was protokolliert wurde.</translation>
    </message>
    <message>
        <source>Take the keys to the scene list.</source>
        <translation>Die Tastatureingabe in die Szenenliste setzen.</translation>
    </message>
    <message>
        <source>Show the scene list and the numbers of the mesh.</source>
        <translation>Die Szenenliste und die Zahlen des Netzes zeigen.</translation>
    </message>
    <message>
        <source>Command Lin&amp;e</source>
        <translation>Befehls&amp;zeile</translation>
    </message>
    <message>
        <source>Mac&amp;ro...</source>
        <translation>&amp;Makro...</translation>
    </message>
    <message>
        <source>Lo&amp;g</source>
        <translation>Pro&amp;tokoll</translation>
    </message>
    <message>
        <source>Scene Lis&amp;t</source>
        <translation>Szenen&amp;liste</translation>
    </message>
    <message>
        <source>Scene Pa&amp;nel</source>
        <translation>Sze&amp;nenbereich</translation>
    </message>
</context>
<context>
    <name>orvane::MeshCommands</name>
    <message>
        <source>Draw on &amp;This Mesh</source>
        <translation>Auf diesem Netz &amp;zeichnen</translation>
    </message>
    <message>
        <source>Curve tools draw on the mesh that is current in the scene list.</source>
        <translation>Kurvenwerkzeuge zeichnen auf das Netz, das in der Szenenliste aktuell ist.</translation>
    </message>
    <message>
        <source>&amp;Smooth Along Source</source>
        <translation>Entlang der Vorlage &amp;glätten</translation>
    </message>
    <message>
        <source>Even out the vertices of the new mesh; they stay on the source.</source>
        <translation>Die Eckpunkte des neuen Netzes gleichmäßiger verteilen; sie bleiben auf der Vorlage.</translation>
    </message>
    <message>
        <source>&amp;Put Onto Source</source>
        <translation>Auf die &amp;Vorlage setzen</translation>
    </message>
    <message>
        <source>Put every vertex of the new mesh back onto the source.</source>
        <translation>Jeden Eckpunkt des neuen Netzes zurück auf die Vorlage setzen.</translation>
    </message>
</context>
<context>
    <name>orvane::PreferencesDialog</name>
    <message>
        <source>As the system</source>
        <translation>Wie im System</translation>
    </message>
    <message>
        <source>Alt and drag: left orbits, middle pans, right zooms</source>
        <translation>Alt: links dreht, Mitte verschiebt, rechts zoomt</translation>
    </message>
    <message>
        <source>Middle drag orbits, with Shift pans, with Ctrl zooms</source>
        <translation>Mitte dreht, mit Umschalt verschiebt, mit Strg zoomt</translation>
    </message>
    <message>
        <source>Viewer: left drag orbits beside the surface, middle drag pans</source>
        <translation>Links neben dem Modell dreht, Mitte verschiebt</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Glatt</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Clay</source>
        <translation>Clay</translation>
    </message>
    <message>
        <source>Render Mesh Faults</source>
        <translation>Netzfehler anzeigen</translation>
    </message>
    <message>
        <source>Ground grid</source>
        <translation>Bodengitter</translation>
    </message>
    <message>
        <source>Heads-up line: file, faces, tool, frame rate</source>
        <translation>Infozeile: Datei, Flächen, Werkzeug, Bildrate</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>&amp;Navigation:</source>
        <translation>&amp;Navigation:</translation>
    </message>
    <message>
        <source>&amp;Shading:</source>
        <translation>&amp;Schattierung:</translation>
    </message>
    <message>
        <source>Co&amp;lours:</source>
        <translation>&amp;Farben:</translation>
    </message>
    <message>
        <source>L&amp;anguage:</source>
        <translation>S&amp;prache:</translation>
    </message>
    <message>
        <source>Another language shows at the next start.</source>
        <translation>Eine andere Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Keep unsaved &amp;work every:</source>
        <translation>Nicht Gespeichertes si&amp;chern alle:</translation>
    </message>
</context>
<context>
    <name>orvane::ProgressDisplay</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>orvane::SceneList</name>
    <message>
        <source>Scene list</source>
        <translation>Szenenliste</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Show or Hide</source>
        <translation>Ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Draw on This Mesh</source>
        <translation>Auf diesem Netz zeichnen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Meshes (%1)</source>
        <translation>Netze (%1)</translation>
    </message>
    <message>
        <source>Curves (%1)</source>
        <translation>Kurven (%1)</translation>
    </message>
    <message>
        <source>%1: curve tools draw on this mesh.</source>
        <translation>%1: Kurvenwerkzeuge zeichnen auf dieses Netz.</translation>
    </message>
    <message>
        <source>From creation %1</source>
        <translation>Aus Erzeugung %1</translation>
    </message>
    <message>
        <source>Hidden. Click to show.</source>
        <translation>Ausgeblendet. Zum Einblenden klicken.</translation>
    </message>
    <message>
        <source>Shown. Click to hide.</source>
        <translation>Eingeblendet. Zum Ausblenden klicken.</translation>
    </message>
</context>
<context>
    <name>orvane::ShortcutSheet</name>
    <message>
        <source>Orbit</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>left drag</source>
        <translation>links ziehen</translation>
    </message>
    <message>
        <source>middle drag</source>
        <translation>Mitte ziehen</translation>
    </message>
    <message>
        <source>right drag</source>
        <translation>rechts ziehen</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Zoom to the pointer</source>
        <translation>Zum Mauszeiger zoomen</translation>
    </message>
    <message>
        <source>Use the tool</source>
        <translation>Werkzeug anwenden</translation>
    </message>
    <message>
        <source>right click</source>
        <translation>Rechtsklick</translation>
    </message>
    <message>
        <source>Give up the stroke in hand</source>
        <translation>Laufenden Strich verwerfen</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>orvane::StartPage</name>
    <message>
        <source>Open the example</source>
        <translation>Beispiel öffnen</translation>
    </message>
    <message>
        <source>A sculpted head with curves on it</source>
        <translation>Ein modellierter Kopf mit Kurven</translation>
    </message>
    <message>
        <source>Open a file...</source>
        <translation>Datei öffnen...</translation>
    </message>
    <message>
        <source>A mesh, curves or a scene</source>
        <translation>Ein Netz, Kurven oder eine Szene</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Anfangen</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>How it goes</source>
        <translation>So geht es</translation>
    </message>
    <message>
        <source>&lt;ol style=&quot;margin-left: -18px&quot;&gt;&lt;li&gt;Open a dense mesh, or drop it here.&lt;/li&gt;&lt;li&gt;Draw curves on it with the left button: the edges of the new mesh. Where two cross comes a vertex.&lt;/li&gt;&lt;li&gt;Choose &lt;b&gt;Mesh &amp;gt; Create Mesh from Curves&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Not right yet? Undo, mend a curve, create again.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Press &lt;b&gt;H&lt;/b&gt; for all keys, &lt;b&gt;F1&lt;/b&gt; for help.&lt;/p&gt;</source>
        <translation>&lt;ol style=&quot;margin-left: -18px&quot;&gt;&lt;li&gt;Öffnen Sie ein dichtes Netz, oder ziehen Sie es hierher.&lt;/li&gt;&lt;li&gt;Zeichnen Sie mit der linken Maustaste Kurven darauf: die Kanten des neuen Netzes. Wo zwei sich kreuzen, entsteht ein Eckpunkt.&lt;/li&gt;&lt;li&gt;Wählen Sie &lt;b&gt;Netz &amp;gt; Netz aus Kurven erzeugen&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Noch nicht richtig? Machen Sie es rückgängig, bessern Sie eine Kurve nach, erzeugen Sie erneut.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Drücken Sie &lt;b&gt;H&lt;/b&gt; für alle Tasten, &lt;b&gt;F1&lt;/b&gt; für Hilfe.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>How do you turn the view?</source>
        <translation>Wie drehen Sie die Ansicht?</translation>
    </message>
    <message>
        <source>None yet.</source>
        <translation>Noch keine.</translation>
    </message>
</context>
<context>
    <name>orvane::StatisticsPanel</name>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Quads</source>
        <translation>Vierecke</translation>
    </message>
    <message>
        <source>Faces of %1 corners</source>
        <translation>Flächen mit %1 Ecken</translation>
    </message>
    <message>
        <source>No faults</source>
        <translation>Keine Fehler</translation>
    </message>
    <message>
        <source>No mesh yet.</source>
        <translation>Noch kein Netz.</translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation>Eckpunkte</translation>
    </message>
    <message>
        <source>Faces</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>Open edges</source>
        <translation>Offene Kanten</translation>
    </message>
</context>
<context>
    <name>orvane::StrokeBar</name>
    <message>
        <source>Stroke</source>
        <translation>Strich</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>From point to point, in percent of the mesh&apos;s size</source>
        <translation>Von Punkt zu Punkt, in Prozent der Größe des Netzes</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>How much jitter is evened out; 0 for none</source>
        <translation>Wie stark Zittern ausgeglichen wird; 0 für gar nicht</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Radius of the erasing, moving and smoothing brush, in pixels</source>
        <translation>Radius des Pinsels zum Radieren, Verschieben und Glätten, in Pixeln</translation>
    </message>
    <message>
        <source>Run past curves</source>
        <translation>Kurven kreuzen</translation>
    </message>
    <message>
        <source>No mirror</source>
        <translation>Keine Spiegelung</translation>
    </message>
    <message>
        <source>Mirror X</source>
        <translation>X spiegeln</translation>
    </message>
    <message>
        <source>Mirror Y</source>
        <translation>Y spiegeln</translation>
    </message>
    <message>
        <source>Mirror Z</source>
        <translation>Z spiegeln</translation>
    </message>
    <message>
        <source>What is drawn appears on the other side, too</source>
        <translation>Was Sie zeichnen, erscheint auch auf der anderen Seite</translation>
    </message>
    <message>
        <source>Mirror while drawing</source>
        <translation>Beim Zeichnen spiegeln</translation>
    </message>
    <message>
        <source>A stroke that ends at a curve runs a little past it, so that they cross</source>
        <translation>Ein Strich, der an einer Kurve endet, läuft ein wenig über sie hinaus, damit sie sich kreuzen</translation>
    </message>
</context>
<context>
    <name>orvane::ViewCommands</name>
    <message>
        <source>&amp;Look From</source>
        <translation>&amp;Blick von</translation>
    </message>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>Auswahl &amp;einpassen</translation>
    </message>
    <message>
        <source>Show what is selected as large as it fits.</source>
        <translation>Das Ausgewählte so groß wie möglich zeigen.</translation>
    </message>
    <message>
        <source>Frame &amp;All</source>
        <translation>&amp;Alles einpassen</translation>
    </message>
    <message>
        <source>Show everything.</source>
        <translation>Alles zeigen.</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Look from the front.</source>
        <translation>Von vorn ansehen.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Look from the back.</source>
        <translation>Von hinten ansehen.</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Look from the right.</source>
        <translation>Von rechts ansehen.</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Look from the left.</source>
        <translation>Von links ansehen.</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Look from above.</source>
        <translation>Von oben ansehen.</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Look from below.</source>
        <translation>Von unten ansehen.</translation>
    </message>
    <message>
        <source>Switch &amp;Perspective</source>
        <translation>&amp;Perspektive umschalten</translation>
    </message>
    <message>
        <source>With or without perspective.</source>
        <translation>Mit oder ohne Perspektive.</translation>
    </message>
    <message>
        <source>&amp;Smooth</source>
        <translation>&amp;Glatt</translation>
    </message>
    <message>
        <source>&amp;Flat</source>
        <translation>&amp;Flach</translation>
    </message>
    <message>
        <source>&amp;Clay</source>
        <translation>&amp;Clay</translation>
    </message>
    <message>
        <source>How surfaces are shaded.</source>
        <translation>Wie Oberflächen schattiert werden.</translation>
    </message>
    <message>
        <source>&amp;Shading</source>
        <translation>&amp;Schattierung</translation>
    </message>
    <message>
        <source>&amp;Wireframe</source>
        <translation>&amp;Drahtgitter</translation>
    </message>
    <message>
        <source>Show the edges of all faces.</source>
        <translation>Die Kanten aller Flächen zeigen.</translation>
    </message>
    <message>
        <source>&amp;X-Ray</source>
        <translation>&amp;Röntgenansicht</translation>
    </message>
    <message>
        <source>Look through surfaces.</source>
        <translation>Durch Oberflächen hindurchsehen.</translation>
    </message>
    <message>
        <source>&amp;Dim Source</source>
        <translation>&amp;Vorlage abschwächen</translation>
    </message>
    <message>
        <source>The source steps back behind a new mesh.</source>
        <translation>Die Vorlage tritt hinter ein neues Netz zurück.</translation>
    </message>
    <message>
        <source>Curve P&amp;oints</source>
        <translation>Kurvenp&amp;unkte</translation>
    </message>
    <message>
        <source>Show the points of curves.</source>
        <translation>Die Punkte der Kurven zeigen.</translation>
    </message>
    <message>
        <source>Show a grid on the ground.</source>
        <translation>Ein Gitter auf dem Boden zeigen.</translation>
    </message>
    <message>
        <source>Axes in the &amp;Corner</source>
        <translation>Achsen in der Ec&amp;ke</translation>
    </message>
    <message>
        <source>Show which way is which.</source>
        <translation>Zeigen, wo welche Richtung ist.</translation>
    </message>
    <message>
        <source>&amp;Heads-up Line</source>
        <translation>&amp;Infozeile</translation>
    </message>
    <message>
        <source>Show file, faces, tool and frame rate.</source>
        <translation>Datei, Flächen, Werkzeug und Bildrate zeigen.</translation>
    </message>
    <message>
        <source>Render &amp;Mesh Faults</source>
        <translation>Netz&amp;fehler anzeigen</translation>
    </message>
    <message>
        <source>Show what is wrong with a mesh.</source>
        <translation>Zeigen, was an einem Netz nicht stimmt.</translation>
    </message>
    <message>
        <source>Gr&amp;id</source>
        <translation>Boden&amp;gitter</translation>
    </message>
</context>
</TS>
