<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>trailbook::MainWindow</name>
    <message>
        <source>Trailbook</source>
        <translation>Wanderbuch</translation>
    </message>
    <message>
        <source>&amp;New Trail</source>
        <translation>&amp;Neuer Weg</translation>
    </message>
    <message>
        <source>&amp;Delete Trail</source>
        <translation>Weg &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Share</source>
        <translation>&amp;Teilen</translation>
    </message>
    <message>
        <source>Share this trail (Ctrl+Shift+S)</source>
        <translation>Diesen Weg teilen (Strg+Umschalt+S)</translation>
    </message>
    <message>
        <source>&amp;GPX Track...</source>
        <translation>&amp;GPX-Spur ...</translation>
    </message>
    <message>
        <source>&amp;Packing List</source>
        <translation>&amp;Packliste</translation>
    </message>
    <message>
        <source>&amp;About Trailbook</source>
        <translation>Ü&amp;ber Wanderbuch</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
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
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Main tools</source>
        <translation>Hauptwerkzeuge</translation>
    </message>
    <message>
        <source>Search trails</source>
        <translation>Wege suchen</translation>
    </message>
    <message>
        <source>New Trail</source>
        <translation>Neuer Weg</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>A new trail was added.</source>
        <translation>Ein neuer Weg wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>A link was copied.</source>
        <translation>Ein Link wurde kopiert.</translation>
    </message>
    <message>
        <source>Exported.</source>
        <translation>Exportiert.</translation>
    </message>
    <message>
        <source>About Trailbook</source>
        <translation>Über Wanderbuch</translation>
    </message>
    <message>
        <source>A small hiking planner.</source>
        <translation>Ein kleiner Wanderplaner.</translation>
    </message>
    <message numerus="yes">
        <source>%n trail(s)</source>
        <translation><numerusform>%n Weg</numerusform><numerusform>%n Wege</numerusform></translation>
    </message>
</context>
<context>
    <name>trailbook::DetailPane</name>
    <message>
        <source>Details</source>
        <translation>Angaben</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>Ausrüstung</translation>
    </message>
    <message>
        <source>Trail name</source>
        <translation>Name des Weges</translation>
    </message>
    <message>
        <source> h</source>
        <translation> Std.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Region:</source>
        <translation>&amp;Gegend:</translation>
    </message>
    <message>
        <source>&amp;Difficulty:</source>
        <translation>&amp;Schwierigkeit:</translation>
    </message>
    <message>
        <source>&amp;Walking time:</source>
        <translation>Geh&amp;zeit:</translation>
    </message>
    <message>
        <source>Best season</source>
        <translation>Beste Jahreszeit</translation>
    </message>
    <message>
        <source>Spring</source>
        <translation>Frühling</translation>
    </message>
    <message>
        <source>Summer</source>
        <translation>Sommer</translation>
    </message>
    <message>
        <source>Autumn</source>
        <translation>Herbst</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Unterwegs</translation>
    </message>
    <message>
        <source>Suitable for children</source>
        <translation>Für Kinder geeignet</translation>
    </message>
    <message>
        <source>Dogs allowed</source>
        <translation>Hunde erlaubt</translation>
    </message>
    <message>
        <source>Hut with food</source>
        <translation>Bewirtete Hütte</translation>
    </message>
    <message>
        <source>Drinking water</source>
        <translation>Trinkwasser</translation>
    </message>
    <message>
        <source>Mobile reception</source>
        <translation>Handyempfang</translation>
    </message>
    <message>
        <source>Reachable by train</source>
        <translation>Mit der Bahn erreichbar</translation>
    </message>
    <message>
        <source>Effort</source>
        <translation>Anspruch</translation>
    </message>
    <message>
        <source>Climb</source>
        <translation>Anstieg</translation>
    </message>
    <message>
        <source>Technique</source>
        <translation>Technik</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Landschaft</translation>
    </message>
    <message>
        <source>Solitude</source>
        <translation>Einsamkeit</translation>
    </message>
    <message>
        <source>Publish Trail</source>
        <translation>Weg veröffentlichen</translation>
    </message>
    <message>
        <source>Published.</source>
        <translation>Veröffentlicht.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gesichert.</translation>
    </message>
    <message>
        <source>Changes taken back.</source>
        <translation>Änderungen zurückgenommen.</translation>
    </message>
    <message>
        <source>Bold (Ctrl+B)</source>
        <translation>Fett (Strg+B)</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Lieblingsweg</translation>
    </message>
    <message>
        <source>What was it like?</source>
        <translation>Wie war es?</translation>
    </message>
    <message>
        <source>Boots</source>
        <translation>Stiefel</translation>
    </message>
    <message>
        <source>Poles</source>
        <translation>Stöcke</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Seil</translation>
    </message>
    <message>
        <source>Crampons</source>
        <translation>Steigeisen</translation>
    </message>
</context>
<context>
    <name>trailbook::TrailModel</name>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>Trail</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Gegend</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Difficulty</source>
        <translation>Schwierigkeit</translation>
    </message>
    <message>
        <source>Easy</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Demanding</source>
        <translation>Anspruchsvoll</translation>
    </message>
</context>
<context>
    <name>trailbook::PackingWindow</name>
    <message>
        <source>Packing List</source>
        <translation>Packliste</translation>
    </message>
    <message>
        <source>What else?</source>
        <translation>Was noch?</translation>
    </message>
    <message>
        <source>Add Item</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Tick off what is already in the rucksack.</source>
        <translation>Haken Sie ab, was schon im Rucksack ist.</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Water bottle</source>
        <translation>Trinkflasche</translation>
    </message>
    <message>
        <source>Rain jacket</source>
        <translation>Regenjacke</translation>
    </message>
    <message>
        <source>First-aid kit</source>
        <translation>Verbandszeug</translation>
    </message>
    <message>
        <source>Head torch</source>
        <translation>Stirnlampe</translation>
    </message>
    <message>
        <source>Snack</source>
        <translation>Imbiss</translation>
    </message>
    <message>
        <source>%1 of %2 packed</source>
        <translation>%1 von %2 gepackt</translation>
    </message>
</context>
</TS>
