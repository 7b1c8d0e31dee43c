<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ManualRetopoDialog</name>
    <message>
        <source>Create Mesh from Curves</source>
        <translation>Netz aus Kurven erzeugen</translation>
    </message>
    <message>
        <source>If the curve intersections you &lt;br&gt; draw describe a boundary comprising more than this number of edges, Orvane will assume this is intended to be a hole in the mesh, and not a face.</source>
        <translation>Bilden die Kreuzungen Ihrer Kurven &lt;br&gt; einen Rand aus mehr Kanten als hier angegeben, nimmt Orvane an, dass dort ein Loch im Netz gewollt ist und keine Fläche.</translation>
    </message>
    <message>
        <source>Some 3d curves can appear &lt;br&gt; to cross each other while in fact they have a slight separation between them. This sets the largest distance at which such a crossing will be detected as an intersection.</source>
        <translation>Manche 3D-Kurven scheinen sich &lt;br&gt; zu kreuzen, obwohl zwischen ihnen ein kleiner Abstand liegt. Hier legen Sie fest, bis zu welchem Abstand dies noch als Kreuzung erkannt wird.</translation>
    </message>
    <message>
        <source>Tells Orvane how far to extend curves while searching &lt;br&gt; for intersections. This can help when the end of one curve is barely touching the middle of another.</source>
        <translation>Legt fest, wie weit Orvane die Kurven bei der Suche nach &lt;br&gt; Kreuzungen verlängert. Das hilft, wenn das Ende einer Kurve die Mitte einer anderen gerade eben berührt.</translation>
    </message>
    <message>
        <source>Turn this on to prevent Orvane&lt;br&gt; from counting curve&lt;br&gt; self-intersections as new vertices&lt;br&gt; when creating a mesh</source>
        <translation>Schalten Sie dies ein, damit Orvane&lt;br&gt; Selbstkreuzungen einer Kurve&lt;br&gt; beim Erzeugen eines Netzes nicht&lt;br&gt; als neue Eckpunkte zählt</translation>
    </message>
    <message>
        <source>Renders the computed curve &lt;br&gt; intersections. Select Create Mesh to see the intersections.</source>
        <translation>Zeigt die berechneten Kreuzungen &lt;br&gt; der Kurven an. Wählen Sie „Netz erzeugen“, um die Kreuzungen zu sehen.</translation>
    </message>
    <message>
        <source>Help...</source>
        <translation>Hilfe...</translation>
    </message>
    <message>
        <source>Create Mesh</source>
        <translation>Netz erzeugen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Left/Right (X) Symmetry:</source>
        <translation>Links/Rechts-Symmetrie (X):</translation>
    </message>
    <message>
        <source>Mirror Left to Right</source>
        <translation>Von links nach rechts spiegeln</translation>
    </message>
    <message>
        <source>Mirror Right to Left</source>
        <translation>Von rechts nach links spiegeln</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Top/Bottom (Y) Symmetry:</source>
        <translation>Oben/Unten-Symmetrie (Y):</translation>
    </message>
    <message>
        <source>Mirror Bottom to Top</source>
        <translation>Von unten nach oben spiegeln</translation>
    </message>
    <message>
        <source>Mirror Top to Bottom</source>
        <translation>Von oben nach unten spiegeln</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Front/Back (Z) Symmetry:</source>
        <translation>Vorn/Hinten-Symmetrie (Z):</translation>
    </message>
    <message>
        <source>Mirror Back to Front</source>
        <translation>Von hinten nach vorn spiegeln</translation>
    </message>
    <message>
        <source>Mirror Front to Back</source>
        <translation>Von vorn nach hinten spiegeln</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Set Topological Axis to:</source>
        <translation>Topologische Achse:</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>ManualRetopoOperation</name>
    <message>
        <source>ManualRetopoOperation</source>
        <translation>Netz aus Kurven erzeugen</translation>
    </message>
    <message>
        <source>every mesh was discarded for its faults</source>
        <translation>alle Netze wegen ihrer Fehler verworfen</translation>
    </message>
    <message>
        <source>no closed cell of the curves has at most %1 edges</source>
        <translation>keine geschlossene Zelle der Kurven mit höchstens %1 Kanten</translation>
    </message>
    <message>
        <source>loose ends keep every cell of the curves from closing</source>
        <translation>keine geschlossene Zelle der Kurven wegen loser Enden</translation>
    </message>
    <message>
        <source>the curves cross, but close no cell</source>
        <translation>Kreuzungen vorhanden, aber keine geschlossene Zelle der Kurven</translation>
    </message>
    <message>
        <source>there are no curves</source>
        <translation>keine Kurven vorhanden</translation>
    </message>
    <message>
        <source>no two curves cross</source>
        <translation>keine Kurven, die sich kreuzen</translation>
    </message>
    <message>
        <source>Crossings: %1.</source>
        <translation>Kreuzungen: %1.</translation>
    </message>
    <message>
        <source>Faces: %1.</source>
        <translation>Flächen: %1.</translation>
    </message>
    <message>
        <source>Holes: %1.</source>
        <translation>Löcher: %1.</translation>
    </message>
    <message>
        <source>Time: %1 s.</source>
        <translation>Dauer: %1 s.</translation>
    </message>
</context>
<context>
    <name>Quillmesh</name>
    <message>
        <source>No valid 3d curve in scene</source>
        <translation>Keine gültige 3D-Kurve in der Szene</translation>
    </message>
    <message>
        <source>Create Mesh from Curves...</source>
        <translation>Netz aus Kurven erzeugen...</translation>
    </message>
</context>
<context>
    <name>RetopologyHelpDialog</name>
    <message>
        <source>&lt;font size=+3&gt;How to Create a Mesh from Curves&lt;/font&gt;</source>
        <translation>&lt;font size=+3&gt;So erzeugen Sie ein Netz aus Kurven&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font size=+1&gt;Use the Curve Tools to draw a&lt;br&gt;new mesh on an existing one.&lt;/font&gt;</source>
        <translation>&lt;font size=+1&gt;Zeichnen Sie mit den Kurven-&lt;br&gt;werkzeugen ein neues Netz&lt;br&gt;auf ein vorhandenes.&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font size=+1&gt;Select the Curves or the Mesh.&lt;/font&gt;</source>
        <translation>&lt;font size=+1&gt;Wählen Sie die Kurven&lt;br&gt;oder das Netz aus.&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font size=+1&gt;Choose &lt;b&gt;Create Mesh from&lt;br&gt;Curves&lt;/b&gt; to make your new mesh.&lt;/font&gt;</source>
        <translation>&lt;font size=+1&gt;Wählen Sie &lt;b&gt;Netz aus Kurven&lt;br&gt;erzeugen&lt;/b&gt;, um Ihr neues Netz&lt;br&gt;zu erstellen.&lt;/font&gt;</translation>
    </message>
    <message>
        <source>Tell me more...</source>
        <translation>Mehr dazu...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ValidateMeshFeedbackmDialog</name>
    <message>
        <source>&lt;strong&gt;High-valence vertex&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;At least one vertex has more than 16 adjacent edges. You can use this mesh, but if you use it for a map extraction with Mesh Smoothing turned on, there will be artifacts in the resulting map. </source>
        <translation>&lt;strong&gt;Eckpunkt mit hoher Valenz&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;An mindestens einem Eckpunkt treffen mehr als 16 Kanten zusammen. Sie können dieses Netz verwenden; wenn Sie aber mit eingeschalteter Netzglättung eine Map daraus extrahieren, enthält die entstehende Map Artefakte. </translation>
    </message>
    <message>
        <source>&lt;strong&gt;Non-manifold (T-shape)&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;At least one edge in this mesh is shared by more than two faces. This must be corrected before the mesh can be used in Orvane.</source>
        <translation>&lt;strong&gt;Nicht mannigfaltig (T-Form)&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Mindestens eine Kante dieses Netzes gehört zu mehr als zwei Flächen. Dies muss behoben werden, bevor das Netz in Orvane verwendet werden kann.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Non-manifold (vertex splice)&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;At least one vertex in this mesh is shared by faces that are not a part of the same fan. This must be corrected before the mesh can be used in Orvane.</source>
        <translation>&lt;strong&gt;Nicht mannigfaltig (verbundene Fächer)&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Mindestens ein Eckpunkt dieses Netzes gehört zu Flächen, die nicht alle Teil desselben Fächers sind. Dies muss behoben werden, bevor das Netz in Orvane verwendet werden kann.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Two-sided faces&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;There is at least one face in this mesh whose boundary is made up of only two edges. Using this mesh in Orvane will cause errors when sculpting and painting.</source>
        <translation>&lt;strong&gt;Flächen mit zwei Kanten&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Dieses Netz enthält mindestens eine Fläche, deren Rand aus nur zwei Kanten besteht. Die Verwendung dieses Netzes in Orvane führt beim Sculpting und beim Bemalen zu Fehlern.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Too many sides in a face&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;The boundary of at least one face in the mesh comprises more than 16 edges. This mesh will not subdivide properly, and will show visible artifacts near this face if painted.</source>
        <translation>&lt;strong&gt;Zu viele Kanten an einer Fläche&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Der Rand mindestens einer Fläche dieses Netzes besteht aus mehr als 16 Kanten. Das Netz lässt sich nicht richtig unterteilen und zeigt nach dem Bemalen sichtbare Artefakte in der Nähe dieser Fläche.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Boundary Vertex has Too Many Edges&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;A vertex is shared by more than two boundary edges. This must be corrected before the mesh can be used in Orvane.</source>
        <translation>&lt;strong&gt;Randeckpunkt mit zu vielen Kanten&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Ein Eckpunkt gehört zu mehr als zwei Randkanten. Dies muss behoben werden, bevor das Netz in Orvane verwendet werden kann.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Interior Vertex has Valence Two&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;A vertex on the interior of the mesh has exactly two edges connecting it. This mesh cannot be subdivided, and will cause problems when sculpting.</source>
        <translation>&lt;strong&gt;Innerer Eckpunkt mit Valenz zwei&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Von einem Eckpunkt im Inneren des Netzes gehen genau zwei Kanten aus. Dieses Netz kann nicht unterteilt werden und verursacht beim Sculpting Probleme.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Zero-length edges&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;At least one edge in this mesh is zero-length. If painted, this mesh will show visible artifacts. This can be corrected by subdividing the mesh once with Smooth Positions turned on.</source>
        <translation>&lt;strong&gt;Kanten der Länge null&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Mindestens eine Kante dieses Netzes hat die Länge null. Wird das Netz bemalt, zeigt es sichtbare Artefakte. Dies lässt sich beheben, indem Sie das Netz einmal mit eingeschalteter Option „Positionen glätten“ unterteilen.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Lamina Faces&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Some faces in this mesh lie exactly on top of other faces. This mesh will not subdivide properly, and will have visible artifacts if painted.</source>
        <translation>&lt;strong&gt;Deckungsgleiche Flächen&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Einige Flächen dieses Netzes liegen genau auf anderen Flächen. Das Netz lässt sich nicht richtig unterteilen und zeigt nach dem Bemalen sichtbare Artefakte.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;UV Faces Crossing Tile Boundaries&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;The UV coordinates of some faces on this mesh cross tile boundaries. (In Orvane, UV tiles are bounded by integer UV values, such as 0-1, 1-2, 2-3, etc.) This mesh cannot be painted properly. To see the problem, go to the UV View tab.</source>
        <translation>&lt;strong&gt;UV-Flächen über Kachelgrenzen hinweg&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Die UV-Koordinaten einiger Flächen dieses Netzes überschreiten Kachelgrenzen. (In Orvane sind UV-Kacheln durch ganzzahlige UV-Werte begrenzt, zum Beispiel 0–1, 1–2, 2–3 usw.) Dieses Netz kann nicht richtig bemalt werden. Um das Problem zu sehen, wechseln Sie zum Tab „UV-Ansicht“.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Incomplete UV Set&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;This mesh has an incomplete set of UVs. You must fix this problem before you can subdivide or paint the mesh properly. To replace the UVs, use &quot;Create UVs...&quot; in the &quot;UVs and Maps&quot; menu.</source>
        <translation>&lt;strong&gt;Unvollständiger UV-Satz&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Dieses Netz hat einen unvollständigen Satz von UVs. Sie müssen das Problem beheben, bevor Sie das Netz richtig unterteilen oder bemalen können. Um die UVs zu ersetzen, wählen Sie „UVs erzeugen...“ im Menü „UVs und Maps“.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;Degenerated Face&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;This mesh has some triangles where three corners lie on the same line, the normal of this kind of face may not be calculated properly.</source>
        <translation>&lt;strong&gt;Entartete Fläche&lt;/strong&gt;&lt;p&gt;&lt;/p&gt;Dieses Netz enthält Dreiecke, deren drei Ecken auf einer Geraden liegen. Die Normale einer solchen Fläche lässt sich möglicherweise nicht richtig berechnen.</translation>
    </message>
    <message>
        <source>&lt;strong&gt;&lt;font size=&quot;5&quot;&gt;Retopologizing Problem&lt;/font&gt;&lt;/strong&gt;</source>
        <translation>&lt;strong&gt;&lt;font size=&quot;5&quot;&gt;Problem bei der Retopologie&lt;/font&gt;&lt;/strong&gt;</translation>
    </message>
    <message>
        <source>The mesh %1 contains errors. </source>
        <translation>Das Netz %1 enthält Fehler. </translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Akzeptieren</translation>
    </message>
    <message>
        <source>Accept the mesh and close dialog.</source>
        <translation>Das Netz akzeptieren und den Dialog schließen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this dialog and return to Orvane.</source>
        <translation>Diesen Dialog schließen und zu Orvane zurückkehren.</translation>
    </message>
</context>
</TS>
