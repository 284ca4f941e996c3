<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About the job editor</source>
        <translation>Über den Auftragseditor</translation>
    </message>
    <message>
        <source>Versions and places</source>
        <translation>Versionen und Orte</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Loaded from</source>
        <translation>Geladen aus</translation>
    </message>
    <message>
        <source>Job editor</source>
        <translation>Auftragseditor</translation>
    </message>
    <message>
        <source>Library, interface</source>
        <translation>Bibliothek, Schnittstelle</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>Plug-in %1</source>
        <translation>Plug-in %1</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>Anlage</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Composes jobs for radio monitoring out of the settings of plug-ins.</source>
        <translation>Stellt Aufträge für die Funküberwachung aus den Einstellungen von Plug-ins zusammen.</translation>
    </message>
    <message>
        <source>&amp;Copy as text</source>
        <translation>Als Text &amp;kopieren</translation>
    </message>
</context>
<context>
    <name>ApplyDialog</name>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>Einstellungen übernehmen</translation>
    </message>
    <message>
        <source>&amp;Settings of &quot;%1&quot;</source>
        <translation>&amp;Einstellungen von „%1“</translation>
    </message>
    <message>
        <source>Apply &amp;to</source>
        <translation>Übernehmen &amp;in</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>To a&amp;ll</source>
        <translation>In a&amp;lle</translation>
    </message>
</context>
<context>
    <name>DfScanPlugin</name>
    <message>
        <source>DF scan</source>
        <translation>Peil-Suchlauf</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchlauf</translation>
    </message>
    <message>
        <source>Direction finding</source>
        <translation>Peilung</translation>
    </message>
    <message>
        <source>Tuner</source>
        <translation>Tuner</translation>
    </message>
    <message>
        <source>Demodulation</source>
        <translation>Demodulation</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Emission detection</source>
        <translation>Aussendungserkennung</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Takes bearings and measures signals.</source>
        <translation>Peilt und misst Signale.</translation>
    </message>
</context>
<context>
    <name>EditorPane</name>
    <message>
        <source>This setting has nothing to edit.</source>
        <translation>An dieser Einstellung gibt es nichts zu bearbeiten.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
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
        <source>&amp;Setting</source>
        <translation>&amp;Einstellung</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Umbe&amp;nennen</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Cu&amp;t setting</source>
        <translation>Einstellung &amp;ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy setting</source>
        <translation>Einstellung &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste setting</source>
        <translation>Einstellung einfü&amp;gen</translation>
    </message>
    <message>
        <source>&amp;Filter settings</source>
        <translation>Einstellungen &amp;filtern</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Nothing can be added here</source>
        <translation>Hier lässt sich nichts hinzufügen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The job has changes that are not saved. Save them?</source>
        <translation>Der Auftrag hat Änderungen, die nicht gespeichert sind. Jetzt speichern?</translation>
    </message>
    <message>
        <source>Open a job</source>
        <translation>Auftrag öffnen</translation>
    </message>
    <message>
        <source>Job files (*.xml);;All files (*)</source>
        <translation>Auftragsdateien (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the job</source>
        <translation>Auftrag speichern</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Drop all changes since the job was saved?</source>
        <translation>Alle Änderungen seit dem Speichern des Auftrags verwerfen?</translation>
    </message>
    <message>
        <source>Job editor</source>
        <translation>Auftragseditor</translation>
    </message>
    <message>
        <source>File changed</source>
        <translation>Datei geändert</translation>
    </message>
    <message>
        <source>Another program changed %1. Open it again?</source>
        <translation>Ein anderes Programm hat %1 geändert. Erneut öffnen?</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>The clipboard holds no setting that can be pasted here.</source>
        <translation>Die Zwischenablage enthält keine Einstellung, die sich hier einfügen lässt.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Manuals</source>
        <translation>&amp;Handbücher</translation>
    </message>
    <message>
        <source>&amp;Plug-ins...</source>
        <translation>&amp;Plug-ins...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Über...</translation>
    </message>
    <message>
        <source>There are no plug-ins</source>
        <translation>Es gibt keine Plug-ins</translation>
    </message>
    <message>
        <source>The job was opened, but not all of it was understood.</source>
        <translation>Der Auftrag wurde geöffnet, aber nicht alles darin wurde verstanden.</translation>
    </message>
    <message>
        <source>The job could not be opened.</source>
        <translation>Der Auftrag konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Probleme (%1)</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Als %1 gespeichert</translation>
    </message>
    <message>
        <source>The job was saved, but the file cannot hold all of it.</source>
        <translation>Der Auftrag wurde gespeichert, aber nicht alles passt in die Datei.</translation>
    </message>
    <message>
        <source>The job was not saved.</source>
        <translation>Der Auftrag wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>This sub-job is kept as it is. %1</source>
        <translation>Dieser Teilauftrag bleibt, wie er ist. %1</translation>
    </message>
    <message>
        <source>Add a setting, or select one in the tree.</source>
        <translation>Fügen Sie eine Einstellung hinzu oder wählen Sie eine im Baum.</translation>
    </message>
    <message>
        <source>%1[*] - Job editor</source>
        <translation>%1[*] - Auftragseditor</translation>
    </message>
    <message>
        <source>Re&amp;cover...</source>
        <translation>Wieder&amp;herstellen...</translation>
    </message>
    <message>
        <source>Recover jobs</source>
        <translation>Aufträge wiederherstellen</translation>
    </message>
    <message>
        <source>There is no job to be recovered.</source>
        <translation>Es gibt keinen Auftrag, der wiederherzustellen wäre.</translation>
    </message>
    <message>
        <source>No copy of the job for recovery could be kept: %1</source>
        <translation>Es konnte keine Sicherungskopie des Auftrags angelegt werden: %1</translation>
    </message>
    <message>
        <source>The job was recovered, but there is something to know about it.</source>
        <translation>Der Auftrag wurde wiederhergestellt, aber es gibt etwas zu beachten.</translation>
    </message>
    <message>
        <source>The job could not be recovered.</source>
        <translation>Der Auftrag konnte nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Read &amp;only</source>
        <translation>Nur &amp;lesen</translation>
    </message>
    <message>
        <source>The job can be looked at but not changed</source>
        <translation>Der Auftrag kann angesehen, aber nicht geändert werden</translation>
    </message>
    <message>
        <source>%1[*] (read only) - Job editor</source>
        <translation>%1[*] (nur lesen) - Auftragseditor</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Rules (%1 failed)</source>
        <translation>Regeln (%1 fehlgeschlagen)</translation>
    </message>
    <message>
        <source>Appl&amp;y these settings to...</source>
        <translation>Diese Einstellungen ü&amp;bernehmen in...</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>Einstellungen übernehmen</translation>
    </message>
    <message>
        <source>There is no other setting that could take these settings over.</source>
        <translation>Es gibt keine andere Einstellung, die diese Einstellungen übernehmen könnte.</translation>
    </message>
    <message>
        <source>Not all of it could be applied to: %1</source>
        <translation>Nicht alles konnte übernommen werden in: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Frequencies</source>
        <translation>Frequenzen</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Choose the sub-job that is to have the frequencies of a list. It must have a tuner.</source>
        <translation>Wählen Sie den Teilauftrag, der die Frequenzen einer Liste erhalten soll. Er muss einen Tuner haben.</translation>
    </message>
    <message>
        <source>Su&amp;mmary...</source>
        <translation>Zusa&amp;mmenfassung...</translation>
    </message>
    <message>
        <source>Summary of the job</source>
        <translation>Zusammenfassung des Auftrags</translation>
    </message>
    <message>
        <source>summary</source>
        <translation>zusammenfassung</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>The plug-in has no manual</source>
        <translation>Das Plug-in hat kein Handbuch</translation>
    </message>
    <message>
        <source>%1 is not in the installation</source>
        <translation>%1 gibt es in der Anlage nicht</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>There is no job yet</source>
        <translation>Es gibt noch keinen Auftrag</translation>
    </message>
    <message>
        <source>The job is open for looking only</source>
        <translation>Der Auftrag ist nur zum Ansehen offen</translation>
    </message>
    <message>
        <source>No setting is selected in the tree</source>
        <translation>Im Baum ist keine Einstellung ausgewählt</translation>
    </message>
    <message>
        <source>There is nothing to be undone</source>
        <translation>Es gibt nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>There is nothing to be done again</source>
        <translation>Es gibt nichts zu wiederholen</translation>
    </message>
    <message>
        <source>The setting cannot be changed</source>
        <translation>Die Einstellung kann nicht geändert werden</translation>
    </message>
</context>
<context>
    <name>FreqStoreXml::FileHandling</name>
    <message>
        <source>is no file that can be read, or above 64 MiB</source>
        <translation>ist keine lesbare Datei oder größer als 64 MiB</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>FrequencyPane</name>
    <message>
        <source>&amp;Logarithmic</source>
        <translation>&amp;Logarithmisch</translation>
    </message>
    <message>
        <source>Equal factors instead of equal distances along the axis</source>
        <translation>Gleiche Faktoren statt gleicher Abstände auf der Achse</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show less of the axis, larger (+)</source>
        <translation>Weniger von der Achse zeigen, größer (+)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show more of the axis (-)</source>
        <translation>Mehr von der Achse zeigen (-)</translation>
    </message>
    <message>
        <source>Show &amp;all</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>Show the whole axis (0)</source>
        <translation>Die ganze Achse zeigen (0)</translation>
    </message>
</context>
<context>
    <name>FrequencyStrip</name>
    <message>
        <source>Frequencies of the job</source>
        <translation>Frequenzen des Auftrags</translation>
    </message>
    <message>
        <source>Each sub-job has a band. Its bars are the frequencies that it works at; the hatched bars below them are what its receiver covers.</source>
        <translation>Jeder Teilauftrag hat ein Band. Seine Balken sind die Frequenzen, auf denen er arbeitet; die schraffierten darunter sind das, was sein Empfänger abdeckt.</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Auswählen...</translation>
    </message>
    <message>
        <source>Import into %1</source>
        <translation>In %1 importieren</translation>
    </message>
    <message>
        <source>&amp;List:</source>
        <translation>&amp;Liste:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Entries of the list</source>
        <translation>Einträge der Liste</translation>
    </message>
    <message>
        <source>Import a list</source>
        <translation>Liste importieren</translation>
    </message>
    <message>
        <source>Lists of frequencies (*.xml *.csv *.json);;All files (*)</source>
        <translation>Frequenzlisten (*.xml *.csv *.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Choose a list of frequencies.</source>
        <translation>Wählen Sie eine Frequenzliste.</translation>
    </message>
    <message>
        <source>The list is refused: %1</source>
        <translation>Die Liste wird abgelehnt: %1</translation>
    </message>
    <message>
        <source>Entries to be imported: %1, refused: %2</source>
        <translation>Zu importierende Einträge: %1, abgelehnt: %2</translation>
    </message>
    <message>
        <source>Left out, since there is no place for it: %1</source>
        <translation>Ausgelassen, da es keinen Platz dafür gibt: %1</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>Nichts wurde importiert: %1</translation>
    </message>
    <message>
        <source>The plug-in took %1 of %2 entries.</source>
        <translation>Das Plug-in hat %1 von %2 Einträgen übernommen.</translation>
    </message>
</context>
<context>
    <name>ImportModel</name>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>In the list</source>
        <translation>In der Liste</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Wird zu</translation>
    </message>
</context>
<context>
    <name>JEDVEPLUGIN::FrequencyListView</name>
    <message>
        <source>Frequencies</source>
        <translation>Frequenzen</translation>
    </message>
</context>
<context>
    <name>JEDVEPLUGIN::ResourceSelectionDialog</name>
    <message>
        <source>Resource Selection</source>
        <translation>Auswahl der Ressource</translation>
    </message>
    <message>
        <source>ST Channels</source>
        <translation>ST-Kanäle</translation>
    </message>
    <message>
        <source>DSC Channels</source>
        <translation>DSC-Kanäle</translation>
    </message>
    <message>
        <source>set number of ST Channels</source>
        <translation>Anzahl der ST-Kanäle einstellen</translation>
    </message>
    <message>
        <source>set number of DSC Channels</source>
        <translation>Anzahl der DSC-Kanäle einstellen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Base Resource</source>
        <translation>Basisressource</translation>
    </message>
    <message>
        <source>Tuner Name</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>Record Location</source>
        <translation>Aufzeichnungsort</translation>
    </message>
    <message>
        <source>Startup Modes</source>
        <translation>Startarten</translation>
    </message>
    <message>
        <source>Preclassifier</source>
        <translation>Vorklassifikator</translation>
    </message>
    <message>
        <source>enable Preclassifier</source>
        <translation>Vorklassifikator einschalten</translation>
    </message>
    <message>
        <source>Detector</source>
        <translation>Detektor</translation>
    </message>
    <message>
        <source>Detector Type</source>
        <translation>Detektorart</translation>
    </message>
    <message>
        <source>Production</source>
        <translation>Produktion</translation>
    </message>
    <message>
        <source>Auto Separation</source>
        <translation>Automatische Trennung</translation>
    </message>
    <message>
        <source>Filter Separation</source>
        <translation>Trennung durch Filter</translation>
    </message>
    <message>
        <source>Online Recombination</source>
        <translation>Zusammensetzen im Betrieb</translation>
    </message>
    <message>
        <source>Record Location of the Detector</source>
        <translation>Aufzeichnungsort des Detektors</translation>
    </message>
    <message>
        <source>Base Resource of the Detector</source>
        <translation>Basisressource des Detektors</translation>
    </message>
    <message>
        <source>Min Coverage</source>
        <translation>Mindestabdeckung</translation>
    </message>
    <message>
        <source>Auto Recording</source>
        <translation>Automatische Aufzeichnung</translation>
    </message>
</context>
<context>
    <name>JEDVEPLUGIN::SelectableResourceModel</name>
    <message>
        <source>Base Resource</source>
        <translation>Basisressource</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Max Count</source>
        <translation>Höchstzahl</translation>
    </message>
</context>
<context>
    <name>JEDVEPLUGIN::SubJobWidget</name>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Select All (Max)</source>
        <translation>Alle auswählen (Höchstzahl)</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Hide unavailable resources</source>
        <translation>Nicht verfügbare Ressourcen ausblenden</translation>
    </message>
    <message>
        <source>ST Channels</source>
        <translation>ST-Kanäle</translation>
    </message>
    <message>
        <source>DSC Channels</source>
        <translation>DSC-Kanäle</translation>
    </message>
    <message>
        <source>set number of ST Channels</source>
        <translation>Anzahl der ST-Kanäle einstellen</translation>
    </message>
    <message>
        <source>set number of DSC Channels</source>
        <translation>Anzahl der DSC-Kanäle einstellen</translation>
    </message>
    <message>
        <source>Tuner Name</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>Record Location</source>
        <translation>Aufzeichnungsort</translation>
    </message>
    <message>
        <source>select Record Location</source>
        <translation>Aufzeichnungsort auswählen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Base Resource</source>
        <translation>Basisressource</translation>
    </message>
    <message>
        <source>Startup Mode</source>
        <translation>Startart</translation>
    </message>
    <message>
        <source>Preclassifier</source>
        <translation>Vorklassifikator</translation>
    </message>
    <message>
        <source>enable Preclassifier</source>
        <translation>Vorklassifikator einschalten</translation>
    </message>
    <message>
        <source>Detector</source>
        <translation>Detektor</translation>
    </message>
    <message>
        <source>enable/disable Detector</source>
        <translation>Detektor ein- und ausschalten</translation>
    </message>
    <message>
        <source>Detector Type</source>
        <translation>Detektorart</translation>
    </message>
    <message>
        <source>select Detector Type</source>
        <translation>Detektorart auswählen</translation>
    </message>
    <message>
        <source>Production</source>
        <translation>Produktion</translation>
    </message>
    <message>
        <source>enable/disable Production</source>
        <translation>Produktion ein- und ausschalten</translation>
    </message>
    <message>
        <source>Auto Separation</source>
        <translation>Automatische Trennung</translation>
    </message>
    <message>
        <source>enable/disable Auto Separation</source>
        <translation>Automatische Trennung ein- und ausschalten</translation>
    </message>
    <message>
        <source>Filter Separation</source>
        <translation>Trennung durch Filter</translation>
    </message>
    <message>
        <source>enable/disable Filter Separation</source>
        <translation>Trennung durch Filter ein- und ausschalten</translation>
    </message>
    <message>
        <source>Online Recombination</source>
        <translation>Zusammensetzen im Betrieb</translation>
    </message>
    <message>
        <source>enable/disable Online Recombination</source>
        <translation>Zusammensetzen im Betrieb ein- und ausschalten</translation>
    </message>
    <message>
        <source>select Base Resource</source>
        <translation>Basisressource auswählen</translation>
    </message>
    <message>
        <source>Min Coverage</source>
        <translation>Mindestabdeckung</translation>
    </message>
    <message>
        <source>Auto Recording</source>
        <translation>Automatische Aufzeichnung</translation>
    </message>
    <message>
        <source>enable/disable Auto Recording</source>
        <translation>Automatische Aufzeichnung ein- und ausschalten</translation>
    </message>
    <message>
        <source>Autonomous SCPs</source>
        <translation>Autonome SCP</translation>
    </message>
    <message>
        <source>select autonomous SCPs</source>
        <translation>autonome SCP auswählen</translation>
    </message>
</context>
<context>
    <name>JobXml</name>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>%1 is no parameter set</source>
        <translation>%1 ist kein Parametersatz</translation>
    </message>
    <message>
        <source>Production of content</source>
        <translation>Produktion von Inhalten</translation>
    </message>
    <message>
        <source>Search for signals</source>
        <translation>Suche nach Signalen</translation>
    </message>
    <message>
        <source>Surveillance of bands</source>
        <translation>Überwachung von Bändern</translation>
    </message>
    <message>
        <source>Direction-finding scan</source>
        <translation>Peil-Suchlauf</translation>
    </message>
    <message>
        <source>Measurement of signals</source>
        <translation>Messung von Signalen</translation>
    </message>
    <message>
        <source>Started by the operator</source>
        <translation>Start durch den Bediener</translation>
    </message>
    <message>
        <source>Starts with the job</source>
        <translation>Start mit dem Auftrag</translation>
    </message>
    <message>
        <source>Starts at the set time</source>
        <translation>Start zur eingestellten Zeit</translation>
    </message>
    <message>
        <source>Runs permanently</source>
        <translation>Läuft dauernd</translation>
    </message>
    <message>
        <source>Starts on request of another job</source>
        <translation>Start auf Anforderung eines anderen Auftrags</translation>
    </message>
    <message>
        <source>HT720 receiver</source>
        <translation>Empfänger HT720</translation>
    </message>
    <message>
        <source>TRV9K scan receiver</source>
        <translation>Suchempfänger TRV9K</translation>
    </message>
    <message>
        <source>Direction finder</source>
        <translation>Peiler</translation>
    </message>
    <message>
        <source>Measurement receiver</source>
        <translation>Messempfänger</translation>
    </message>
    <message>
        <source>Signal recorder</source>
        <translation>Signalrekorder</translation>
    </message>
    <message>
        <source>Not recorded</source>
        <translation>Ohne Aufzeichnung</translation>
    </message>
    <message>
        <source>At the receiver</source>
        <translation>Am Empfänger</translation>
    </message>
    <message>
        <source>Server of the station</source>
        <translation>Server der Station</translation>
    </message>
    <message>
        <source>Monitoring centre</source>
        <translation>Zentrale der Funküberwachung</translation>
    </message>
    <message>
        <source>Energy detector</source>
        <translation>Energiedetektor</translation>
    </message>
    <message>
        <source>Signal detector</source>
        <translation>Signaldetektor</translation>
    </message>
    <message>
        <source>Hopper detector</source>
        <translation>Sprungdetektor</translation>
    </message>
    <message>
        <source>At the detector</source>
        <translation>Am Detektor</translation>
    </message>
    <message>
        <source>Job type</source>
        <translation>Auftragsart</translation>
    </message>
    <message>
        <source>Type of the job.</source>
        <translation>Art des Auftrags.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the job.</source>
        <translation>Name des Auftrags.</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Verfasser</translation>
    </message>
    <message>
        <source>Who made the job.</source>
        <translation>Wer den Auftrag erstellt hat.</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>What the job is for.</source>
        <translation>Wozu der Auftrag dient.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>When the job was made (UTC).</source>
        <translation>Wann der Auftrag erstellt wurde (UTC).</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>When the job was changed last (UTC).</source>
        <translation>Wann der Auftrag zuletzt geändert wurde (UTC).</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>The more urgent job gets the receivers.</source>
        <translation>Der dringendere Auftrag bekommt die Empfänger.</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Station that runs the job.</source>
        <translation>Station, die den Auftrag ausführt.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Kind of receiver.</source>
        <translation>Art des Empfängers.</translation>
    </message>
    <message>
        <source>Base resource</source>
        <translation>Basisressource</translation>
    </message>
    <message>
        <source>Receiver or group of receivers of the installation.</source>
        <translation>Empfänger oder Empfängergruppe der Anlage.</translation>
    </message>
    <message>
        <source>Tuner name</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>Name of the receiver in its tuner property file.</source>
        <translation>Name des Empfängers in seiner Beschreibungsdatei.</translation>
    </message>
    <message>
        <source>Record location</source>
        <translation>Aufzeichnungsort</translation>
    </message>
    <message>
        <source>Where the receiver records.</source>
        <translation>Wo der Empfänger aufzeichnet.</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Number of receivers.</source>
        <translation>Anzahl der Empfänger.</translation>
    </message>
    <message>
        <source>Kind of detector.</source>
        <translation>Art des Detektors.</translation>
    </message>
    <message>
        <source>Production</source>
        <translation>Produktion</translation>
    </message>
    <message>
        <source>Detected signals are produced.</source>
        <translation>Erkannte Signale werden produziert.</translation>
    </message>
    <message>
        <source>Where the detector records.</source>
        <translation>Wo der Detektor aufzeichnet.</translation>
    </message>
    <message>
        <source>Auto separation</source>
        <translation>Automatische Trennung</translation>
    </message>
    <message>
        <source>Networks are separated by themselves.</source>
        <translation>Netze werden selbsttätig getrennt.</translation>
    </message>
    <message>
        <source>Filter separation</source>
        <translation>Trennung durch Filter</translation>
    </message>
    <message>
        <source>Networks are separated by filters.</source>
        <translation>Netze werden durch Filter getrennt.</translation>
    </message>
    <message>
        <source>Online recombination</source>
        <translation>Zusammensetzen im Betrieb</translation>
    </message>
    <message>
        <source>Hops are put together while they are received.</source>
        <translation>Sprünge werden schon beim Empfang zusammengesetzt.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Number of channels that follow detected signals.</source>
        <translation>Anzahl der Kanäle, die erkannten Signalen folgen.</translation>
    </message>
    <message>
        <source>Receivers that the channels take.</source>
        <translation>Empfänger, die die Kanäle belegen.</translation>
    </message>
    <message>
        <source>Min coverage</source>
        <translation>Mindestabdeckung</translation>
    </message>
    <message>
        <source>Share of hops from which a network is recorded.</source>
        <translation>Anteil der Sprünge, ab dem ein Netz aufgezeichnet wird.</translation>
    </message>
    <message>
        <source>Auto recording</source>
        <translation>Automatische Aufzeichnung</translation>
    </message>
    <message>
        <source>Networks are recorded by themselves.</source>
        <translation>Netze werden selbsttätig aufgezeichnet.</translation>
    </message>
    <message>
        <source>Autonomous SCP</source>
        <translation>Autonome SCP</translation>
    </message>
    <message>
        <source>Receivers that the detector uses by itself.</source>
        <translation>Empfänger, die der Detektor selbst verwendet.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Frequency of the entry.</source>
        <translation>Frequenz des Eintrags.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Bandwidth of the entry.</source>
        <translation>Bandbreite des Eintrags.</translation>
    </message>
    <message>
        <source>Name of the channel or service.</source>
        <translation>Name des Kanals oder Dienstes.</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>The entry is used.</source>
        <translation>Der Eintrag wird verwendet.</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Durchläufe</translation>
    </message>
    <message>
        <source>Number of cycles; 0 without end.</source>
        <translation>Anzahl der Durchläufe; 0 ohne Ende.</translation>
    </message>
    <message>
        <source>Dwell time</source>
        <translation>Verweilzeit</translation>
    </message>
    <message>
        <source>Time at each frequency.</source>
        <translation>Zeit auf jeder Frequenz.</translation>
    </message>
    <message>
        <source>The frequencies, in the order of the visit.</source>
        <translation>Die Frequenzen in der Reihenfolge des Besuchs.</translation>
    </message>
    <message>
        <source>Name of the transmitter.</source>
        <translation>Name des Senders.</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Threshold and times for this transmitter.</source>
        <translation>Schwelle und Zeiten für diesen Sender.</translation>
    </message>
    <message>
        <source>Analogue demodulation</source>
        <translation>Analoge Demodulation</translation>
    </message>
    <message>
        <source>Analogue demodulation and audio.</source>
        <translation>Analoge Demodulation und Ton.</translation>
    </message>
    <message>
        <source>Direction finding</source>
        <translation>Peilung</translation>
    </message>
    <message>
        <source>Direction finding and location.</source>
        <translation>Peilung und Ortung.</translation>
    </message>
    <message>
        <source>Tuner</source>
        <translation>Tuner</translation>
    </message>
    <message>
        <source>Fixed-frequency tuning.</source>
        <translation>Abstimmung auf eine feste Frequenz.</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Spectrum of the received band.</source>
        <translation>Spektrum des empfangenen Bandes.</translation>
    </message>
    <message>
        <source>Transmitter</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>The transmitters, in the order of the visit.</source>
        <translation>Die Sender in der Reihenfolge des Besuchs.</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>Antenne</translation>
    </message>
    <message>
        <source>Antenna, antenna path and rotator.</source>
        <translation>Antenne, Antennenweg und Rotor.</translation>
    </message>
    <message>
        <source>Signal channels</source>
        <translation>Signalkanäle</translation>
    </message>
    <message>
        <source>Channels that follow detected signals.</source>
        <translation>Kanäle, die erkannten Signalen folgen.</translation>
    </message>
    <message>
        <source>Digital demodulation</source>
        <translation>Digitale Demodulation</translation>
    </message>
    <message>
        <source>Digital demodulation and decoding.</source>
        <translation>Digitale Demodulation und Dekodierung.</translation>
    </message>
    <message>
        <source>Classifier</source>
        <translation>Klassifikator</translation>
    </message>
    <message>
        <source>Automatic classification of signals.</source>
        <translation>Automatische Klassifikation von Signalen.</translation>
    </message>
    <message>
        <source>Fixed-frequency tuning of the receiver.</source>
        <translation>Abstimmung des Empfängers auf eine feste Frequenz.</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchlauf</translation>
    </message>
    <message>
        <source>Scan of a frequency range.</source>
        <translation>Suchlauf über einen Frequenzbereich.</translation>
    </message>
    <message>
        <source>Frequency list</source>
        <translation>Frequenzliste</translation>
    </message>
    <message>
        <source>Frequencies visited in turn.</source>
        <translation>Frequenzen, die der Reihe nach besucht werden.</translation>
    </message>
    <message>
        <source>Transmitter list</source>
        <translation>Senderliste</translation>
    </message>
    <message>
        <source>Transmitters visited in turn.</source>
        <translation>Sender, die der Reihe nach besucht werden.</translation>
    </message>
    <message>
        <source>Short-time signals</source>
        <translation>Kurzzeitsignale</translation>
    </message>
    <message>
        <source>Search for short signals.</source>
        <translation>Suche nach kurzen Signalen.</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Alarms of the sub-job.</source>
        <translation>Alarme des Teilauftrags.</translation>
    </message>
    <message>
        <source>Emission detection</source>
        <translation>Aussendungserkennung</translation>
    </message>
    <message>
        <source>Detection of emissions by their energy.</source>
        <translation>Erkennung von Aussendungen an ihrer Energie.</translation>
    </message>
    <message>
        <source>Automatic operation</source>
        <translation>Automatischer Betrieb</translation>
    </message>
    <message>
        <source>Start, end and repetition without an operator.</source>
        <translation>Beginn, Ende und Wiederholung ohne Bediener.</translation>
    </message>
    <message>
        <source>Signal descriptions</source>
        <translation>Signalbeschreibungen</translation>
    </message>
    <message>
        <source>Signals of interest.</source>
        <translation>Signale, die von Interesse sind.</translation>
    </message>
    <message>
        <source>Hopper processing</source>
        <translation>Sprungverarbeitung</translation>
    </message>
    <message>
        <source>Processing of frequency hoppers.</source>
        <translation>Verarbeitung von Frequenzspringern.</translation>
    </message>
    <message>
        <source>Name of the sub-job.</source>
        <translation>Name des Teilauftrags.</translation>
    </message>
    <message>
        <source>Startup mode</source>
        <translation>Startart</translation>
    </message>
    <message>
        <source>When the sub-job starts.</source>
        <translation>Wann der Teilauftrag beginnt.</translation>
    </message>
    <message>
        <source>Preclassifier</source>
        <translation>Vorklassifikator</translation>
    </message>
    <message>
        <source>Signals are sorted before they are detected.</source>
        <translation>Signale werden vor der Erkennung sortiert.</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Receiver on which the sub-job runs.</source>
        <translation>Empfänger, auf dem der Teilauftrag läuft.</translation>
    </message>
    <message>
        <source>Detector</source>
        <translation>Detektor</translation>
    </message>
    <message>
        <source>Detectors of the sub-job.</source>
        <translation>Detektoren des Teilauftrags.</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>When signals become activities in the result list.</source>
        <translation>Wann Signale zu Aktivitäten in der Ergebnisliste werden.</translation>
    </message>
    <message>
        <source>Automatic recording</source>
        <translation>Automatische Aufzeichnung</translation>
    </message>
    <message>
        <source>Recording without an operator.</source>
        <translation>Aufzeichnung ohne Bediener.</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompression</translation>
    </message>
    <message>
        <source>Compression of recorded data.</source>
        <translation>Kompression aufgezeichneter Daten.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Parameter sets of the sub-job.</source>
        <translation>Parametersätze des Teilauftrags.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>What the job is called, what it is for and who made it.</source>
        <translation>Wie der Auftrag heißt, wozu er dient und von wem er ist.</translation>
    </message>
    <message>
        <source>Sub-job</source>
        <translation>Teilauftrag</translation>
    </message>
    <message>
        <source>Sub-jobs, in the order of the job.</source>
        <translation>Teilaufträge in der Reihenfolge des Auftrags.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version of the job file&apos;s schema.</source>
        <translation>Version des Schemas der Auftragsdatei.</translation>
    </message>
    <message>
        <source>Level above threshold</source>
        <translation>Pegel über der Schwelle</translation>
    </message>
    <message>
        <source>Detected signal</source>
        <translation>Erkanntes Signal</translation>
    </message>
    <message>
        <source>Always active</source>
        <translation>Immer aktiv</translation>
    </message>
    <message>
        <source>Best for the frequency</source>
        <translation>Die beste für die Frequenz</translation>
    </message>
    <message>
        <source>Always the named antenna</source>
        <translation>Immer die genannte Antenne</translation>
    </message>
    <message>
        <source>Chosen by the operator</source>
        <translation>Vom Bediener gewählt</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>vertikal</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>horizontal</translation>
    </message>
    <message>
        <source>circular, left-handed</source>
        <translation>zirkular, linksdrehend</translation>
    </message>
    <message>
        <source>circular, right-handed</source>
        <translation>zirkular, rechtsdrehend</translation>
    </message>
    <message>
        <source>AM (amplitude)</source>
        <translation>AM (Amplitude)</translation>
    </message>
    <message>
        <source>FM (frequency)</source>
        <translation>FM (Frequenz)</translation>
    </message>
    <message>
        <source>PM (phase)</source>
        <translation>PM (Phase)</translation>
    </message>
    <message>
        <source>USB (upper sideband)</source>
        <translation>USB (oberes Seitenband)</translation>
    </message>
    <message>
        <source>LSB (lower sideband)</source>
        <translation>LSB (unteres Seitenband)</translation>
    </message>
    <message>
        <source>ISB (independent sidebands)</source>
        <translation>ISB (unabhängige Seitenbänder)</translation>
    </message>
    <message>
        <source>CW (telegraphy)</source>
        <translation>CW (Telegrafie)</translation>
    </message>
    <message>
        <source>Pulse envelope</source>
        <translation>Hüllkurve von Pulsen</translation>
    </message>
    <message>
        <source>AGC</source>
        <translation>AGC (selbsttätig)</translation>
    </message>
    <message>
        <source>MGC (fixed gain)</source>
        <translation>MGC (feste Verstärkung)</translation>
    </message>
    <message>
        <source>Hold the present gain</source>
        <translation>Momentane Verstärkung halten</translation>
    </message>
    <message>
        <source>No filter</source>
        <translation>Kein Filter</translation>
    </message>
    <message>
        <source>Voice band 300 Hz to 3 kHz</source>
        <translation>Sprachband 300 Hz bis 3 kHz</translation>
    </message>
    <message>
        <source>Automatic notch</source>
        <translation>Selbsttätiges Kerbfilter</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Rauschminderung</translation>
    </message>
    <message>
        <source>One bearing per measurement</source>
        <translation>Eine Peilung je Messung</translation>
    </message>
    <message>
        <source>Continuous bearings</source>
        <translation>Fortlaufende Peilungen</translation>
    </message>
    <message>
        <source>Only above the threshold</source>
        <translation>Nur über der Schwelle</translation>
    </message>
    <message>
        <source>Watson-Watt</source>
        <translation>Watson-Watt</translation>
    </message>
    <message>
        <source>Correlative interferometer</source>
        <translation>Korrelatives Interferometer</translation>
    </message>
    <message>
        <source>Doppler effect</source>
        <translation>Dopplereffekt</translation>
    </message>
    <message>
        <source>Super-resolution</source>
        <translation>Hochauflösend</translation>
    </message>
    <message>
        <source>True north</source>
        <translation>Geografisch Nord</translation>
    </message>
    <message>
        <source>Magnetic north</source>
        <translation>Magnetisch Nord</translation>
    </message>
    <message>
        <source>Axis of the antenna array</source>
        <translation>Achse der Antennengruppe</translation>
    </message>
    <message>
        <source>Oldest signal first</source>
        <translation>Ältestes Signal zuerst</translation>
    </message>
    <message>
        <source>Strongest signal first</source>
        <translation>Stärkstes Signal zuerst</translation>
    </message>
    <message>
        <source>Highest priority first</source>
        <translation>Höchste Priorität zuerst</translation>
    </message>
    <message>
        <source>Demodulated audio</source>
        <translation>Demodulierter Ton</translation>
    </message>
    <message>
        <source>I/Q baseband</source>
        <translation>I/Q-Basisband</translation>
    </message>
    <message>
        <source>Spectra</source>
        <translation>Spektren</translation>
    </message>
    <message>
        <source>Decoded text</source>
        <translation>Dekodierter Text</translation>
    </message>
    <message>
        <source>Bearings</source>
        <translation>Peilungen</translation>
    </message>
    <message>
        <source>low (few false alarms)</source>
        <translation>niedrig (wenige Fehlalarme)</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>mittel</translation>
    </message>
    <message>
        <source>high (weak signals too)</source>
        <translation>hoch (auch schwache Signale)</translation>
    </message>
    <message>
        <source>2-ASK (on/off keying)</source>
        <translation>2-ASK (Tastung)</translation>
    </message>
    <message>
        <source>2-FSK</source>
        <translation>2-FSK</translation>
    </message>
    <message>
        <source>4-FSK</source>
        <translation>4-FSK</translation>
    </message>
    <message>
        <source>MSK (minimum shift)</source>
        <translation>MSK (kleinster Hub)</translation>
    </message>
    <message>
        <source>GMSK (Gaussian minimum shift)</source>
        <translation>GMSK (Hub mit Gaußfilter)</translation>
    </message>
    <message>
        <source>2-PSK</source>
        <translation>2-PSK</translation>
    </message>
    <message>
        <source>4-PSK</source>
        <translation>4-PSK</translation>
    </message>
    <message>
        <source>8-PSK</source>
        <translation>8-PSK</translation>
    </message>
    <message>
        <source>16-QAM</source>
        <translation>16-QAM</translation>
    </message>
    <message>
        <source>No decoding</source>
        <translation>Ohne Dekodierung</translation>
    </message>
    <message>
        <source>Radio teletype (ITA2)</source>
        <translation>Funkfernschreiben (ITA2)</translation>
    </message>
    <message>
        <source>SITOR-B (Navtex)</source>
        <translation>SITOR-B (Navtex)</translation>
    </message>
    <message>
        <source>AIS ship reports</source>
        <translation>AIS-Schiffsmeldungen</translation>
    </message>
    <message>
        <source>ACARS aircraft messages</source>
        <translation>ACARS-Flugzeugmeldungen</translation>
    </message>
    <message>
        <source>POCSAG paging</source>
        <translation>POCSAG-Funkruf</translation>
    </message>
    <message>
        <source>Once per signal</source>
        <translation>Einmal je Signal</translation>
    </message>
    <message>
        <source>As long as the signal lasts</source>
        <translation>Solange das Signal dauert</translation>
    </message>
    <message>
        <source>At the operator&apos;s request</source>
        <translation>Auf Wunsch des Bedieners</translation>
    </message>
    <message>
        <source>By the receiver</source>
        <translation>Durch den Empfänger</translation>
    </message>
    <message>
        <source>Fixed value</source>
        <translation>Fester Wert</translation>
    </message>
    <message>
        <source>Low noise</source>
        <translation>Geringes Rauschen</translation>
    </message>
    <message>
        <source>Low distortion</source>
        <translation>Geringe Verzerrung</translation>
    </message>
    <message>
        <source>Internal oscillator</source>
        <translation>Interner Oszillator</translation>
    </message>
    <message>
        <source>External 10 MHz</source>
        <translation>Extern 10 MHz</translation>
    </message>
    <message>
        <source>Satellite time receiver</source>
        <translation>Satelliten-Zeitempfänger</translation>
    </message>
    <message>
        <source>No window</source>
        <translation>Kein Fenster</translation>
    </message>
    <message>
        <source>von Hann</source>
        <translation>von-Hann-Fenster</translation>
    </message>
    <message>
        <source>Hamming window</source>
        <translation>Hamming-Fenster</translation>
    </message>
    <message>
        <source>Blackman window</source>
        <translation>Blackman-Fenster</translation>
    </message>
    <message>
        <source>Flat top (for levels)</source>
        <translation>Flaches Fenster (für Pegel)</translation>
    </message>
    <message>
        <source>Every spectrum</source>
        <translation>Jedes Spektrum</translation>
    </message>
    <message>
        <source>Mean value</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Maximum hold</source>
        <translation>Maximum halten</translation>
    </message>
    <message>
        <source>Minimum hold</source>
        <translation>Minimum halten</translation>
    </message>
    <message>
        <source>Step by step</source>
        <translation>Schritt für Schritt</translation>
    </message>
    <message>
        <source>Panorama, block by block</source>
        <translation>Panorama, Block für Block</translation>
    </message>
    <message>
        <source>Stored channels</source>
        <translation>Gespeicherte Kanäle</translation>
    </message>
    <message>
        <source>Upwards</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Downwards</source>
        <translation>Abwärts</translation>
    </message>
    <message>
        <source>Up and down in turn</source>
        <translation>Abwechselnd auf und ab</translation>
    </message>
    <message>
        <source>When the signal ends</source>
        <translation>Wenn das Signal endet</translation>
    </message>
    <message>
        <source>When the hold time is over</source>
        <translation>Wenn die Haltezeit vorbei ist</translation>
    </message>
    <message>
        <source>When the operator says so</source>
        <translation>Wenn der Bediener es sagt</translation>
    </message>
    <message>
        <source>Every short signal</source>
        <translation>Jedes kurze Signal</translation>
    </message>
    <message>
        <source>Single bursts</source>
        <translation>Einzelne Bursts</translation>
    </message>
    <message>
        <source>Frequency hoppers</source>
        <translation>Frequenzspringer</translation>
    </message>
    <message>
        <source>Chirps and sounders</source>
        <translation>Chirps und Sounder</translation>
    </message>
    <message>
        <source>Level above the limit</source>
        <translation>Pegel über der Grenze</translation>
    </message>
    <message>
        <source>Level below the limit</source>
        <translation>Pegel unter der Grenze</translation>
    </message>
    <message>
        <source>New signal</source>
        <translation>Neues Signal</translation>
    </message>
    <message>
        <source>Signal lost</source>
        <translation>Signal verloren</translation>
    </message>
    <message>
        <source>Bearing inside the sector</source>
        <translation>Peilung im Sektor</translation>
    </message>
    <message>
        <source>For information</source>
        <translation>Zur Information</translation>
    </message>
    <message>
        <source>Warns the operator</source>
        <translation>Warnt den Bediener</translation>
    </message>
    <message>
        <source>Distress traffic</source>
        <translation>Notverkehr</translation>
    </message>
    <message>
        <source>WAV audio file</source>
        <translation>WAV-Tondatei</translation>
    </message>
    <message>
        <source>I/Q, 16 bits</source>
        <translation>I/Q, 16 Bit</translation>
    </message>
    <message>
        <source>I/Q, 32 bits</source>
        <translation>I/Q, 32 Bit</translation>
    </message>
    <message>
        <source>XML report</source>
        <translation>XML-Bericht</translation>
    </message>
    <message>
        <source>Fixed level</source>
        <translation>Fester Pegel</translation>
    </message>
    <message>
        <source>Above the noise floor</source>
        <translation>Über dem Rauschteppich</translation>
    </message>
    <message>
        <source>Adapts to the spectrum</source>
        <translation>Passt sich dem Spektrum an</translation>
    </message>
    <message>
        <source>Never starts by itself</source>
        <translation>Startet nie von selbst</translation>
    </message>
    <message>
        <source>At the start time</source>
        <translation>Zur Startzeit</translation>
    </message>
    <message>
        <source>With the first signal</source>
        <translation>Mit dem ersten Signal</translation>
    </message>
    <message>
        <source>After another job</source>
        <translation>Nach einem anderen Auftrag</translation>
    </message>
    <message>
        <source>only once</source>
        <translation>nur einmal</translation>
    </message>
    <message>
        <source>every hour</source>
        <translation>jede Stunde</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>jeden Tag</translation>
    </message>
    <message>
        <source>every week</source>
        <translation>jede Woche</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Squelch opens</source>
        <translation>Rauschsperre öffnet</translation>
    </message>
    <message>
        <source>A signal is detected</source>
        <translation>Ein Signal wird erkannt</translation>
    </message>
    <message>
        <source>An alarm is raised</source>
        <translation>Ein Alarm wird ausgelöst</translation>
    </message>
    <message>
        <source>Records all the time</source>
        <translation>Zeichnet dauernd auf</translation>
    </message>
    <message>
        <source>One feature fits</source>
        <translation>Ein Merkmal passt</translation>
    </message>
    <message>
        <source>All features fit</source>
        <translation>Alle Merkmale passen</translation>
    </message>
    <message>
        <source>Best description wins</source>
        <translation>Die beste Beschreibung gewinnt</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Unbekanntes Signal</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Data transmission</source>
        <translation>Datenübertragung</translation>
    </message>
    <message>
        <source>Radio beacon</source>
        <translation>Funkfeuer</translation>
    </message>
    <message>
        <source>Radar pulses</source>
        <translation>Radarpulse</translation>
    </message>
    <message>
        <source>Interference</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>Not separated</source>
        <translation>Nicht getrennt</translation>
    </message>
    <message>
        <source>Timing of the hops</source>
        <translation>Zeitlage der Sprünge</translation>
    </message>
    <message>
        <source>Direction of arrival</source>
        <translation>Einfallsrichtung</translation>
    </message>
    <message>
        <source>Timing and direction</source>
        <translation>Zeitlage und Richtung</translation>
    </message>
    <message>
        <source>Without loss</source>
        <translation>Ohne Verlust</translation>
    </message>
    <message>
        <source>Adapted to the signal</source>
        <translation>An das Signal angepasst</translation>
    </message>
    <message>
        <source>Audio codec</source>
        <translation>Audiocodec</translation>
    </message>
    <message>
        <source>Energy in the channel</source>
        <translation>Energie im Kanal</translation>
    </message>
    <message>
        <source>Autocorrelation</source>
        <translation>Autokorrelation</translation>
    </message>
    <message>
        <source>Cyclic features</source>
        <translation>Zyklische Merkmale</translation>
    </message>
    <message>
        <source>Generate activities</source>
        <translation>Aktivitäten erzeugen</translation>
    </message>
    <message>
        <source>Activities appear in the result list.</source>
        <translation>Aktivitäten erscheinen in der Ergebnisliste.</translation>
    </message>
    <message>
        <source>Activity from</source>
        <translation>Aktivität ab</translation>
    </message>
    <message>
        <source>What counts as an activity.</source>
        <translation>Was als Aktivität zählt.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Level from which a signal counts.</source>
        <translation>Pegel, ab dem ein Signal zählt.</translation>
    </message>
    <message>
        <source>Shortest activity</source>
        <translation>Kürzeste Aktivität</translation>
    </message>
    <message>
        <source>Shorter signals are not reported.</source>
        <translation>Kürzere Signale werden nicht gemeldet.</translation>
    </message>
    <message>
        <source>Longest gap</source>
        <translation>Längste Lücke</translation>
    </message>
    <message>
        <source>A longer break ends the activity.</source>
        <translation>Eine längere Pause beendet die Aktivität.</translation>
    </message>
    <message>
        <source>Longest activity</source>
        <translation>Längste Aktivität</translation>
    </message>
    <message>
        <source>A longer signal is reported in several activities.</source>
        <translation>Ein längeres Signal wird in mehreren Aktivitäten gemeldet.</translation>
    </message>
    <message>
        <source>Frequency tolerance</source>
        <translation>Frequenztoleranz</translation>
    </message>
    <message>
        <source>Signals closer together belong to one activity.</source>
        <translation>Signale, die näher beieinander liegen, gehören zu einer Aktivität.</translation>
    </message>
    <message>
        <source>Report interval</source>
        <translation>Meldeabstand</translation>
    </message>
    <message>
        <source>Time between two reports on a running activity.</source>
        <translation>Zeit zwischen zwei Meldungen zu einer laufenden Aktivität.</translation>
    </message>
    <message>
        <source>Text that each activity of the sub-job carries.</source>
        <translation>Text, den jede Aktivität des Teilauftrags trägt.</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Words under which the activities are found again.</source>
        <translation>Wörter, unter denen die Aktivitäten wiedergefunden werden.</translation>
    </message>
    <message>
        <source>Turn antenna</source>
        <translation>Antenne drehen</translation>
    </message>
    <message>
        <source>The antenna is turned before the job starts.</source>
        <translation>Die Antenne wird gedreht, bevor der Auftrag beginnt.</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Direction of the main lobe.</source>
        <translation>Richtung der Hauptkeule.</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Elevation</translation>
    </message>
    <message>
        <source>Elevation of the main lobe.</source>
        <translation>Erhebungswinkel der Hauptkeule.</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>How the antenna is found.</source>
        <translation>Wie die Antenne gefunden wird.</translation>
    </message>
    <message>
        <source>Name of the antenna at the antenna matrix.</source>
        <translation>Name der Antenne an der Antennenmatrix.</translation>
    </message>
    <message>
        <source>Alternatives</source>
        <translation>Ersatzantennen</translation>
    </message>
    <message>
        <source>Antennas to take, in this order, when the first is in use.</source>
        <translation>Antennen, die der Reihe nach genommen werden, wenn die erste belegt ist.</translation>
    </message>
    <message>
        <source>Polarization</source>
        <translation>Polarisation</translation>
    </message>
    <message>
        <source>Polarization of the antenna.</source>
        <translation>Polarisation der Antenne.</translation>
    </message>
    <message>
        <source>Preamplifier</source>
        <translation>Vorverstärker</translation>
    </message>
    <message>
        <source>The preamplifier at the mast is on.</source>
        <translation>Der Vorverstärker am Mast ist an.</translation>
    </message>
    <message>
        <source>Path attenuation</source>
        <translation>Wegdämpfung</translation>
    </message>
    <message>
        <source>Attenuation between antenna and receiver.</source>
        <translation>Dämpfung zwischen Antenne und Empfänger.</translation>
    </message>
    <message>
        <source>Antenna factor</source>
        <translation>Antennenfaktor</translation>
    </message>
    <message>
        <source>Turns a level into a field strength (dB/m).</source>
        <translation>Macht aus einem Pegel eine Feldstärke (dB/m).</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Lowest frequency to use the antenna for.</source>
        <translation>Tiefste Frequenz, für die die Antenne taugt.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Highest frequency to use the antenna for.</source>
        <translation>Höchste Frequenz, für die die Antenne taugt.</translation>
    </message>
    <message>
        <source>Rotator</source>
        <translation>Rotor</translation>
    </message>
    <message>
        <source>Position of a turnable antenna.</source>
        <translation>Stellung einer drehbaren Antenne.</translation>
    </message>
    <message>
        <source>Demodulation</source>
        <translation>Demodulation</translation>
    </message>
    <message>
        <source>Analogue demodulation of the signal.</source>
        <translation>Analoge Demodulation des Signals.</translation>
    </message>
    <message>
        <source>Width of the filter before the demodulator.</source>
        <translation>Breite des Filters vor dem Demodulator.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Distance of the demodulator from the tuned frequency.</source>
        <translation>Abstand des Demodulators von der abgestimmten Frequenz.</translation>
    </message>
    <message>
        <source>BFO</source>
        <translation>BFO</translation>
    </message>
    <message>
        <source>Beat frequency for telegraphy and sidebands.</source>
        <translation>Schwebungsfrequenz für Telegrafie und Seitenbänder.</translation>
    </message>
    <message>
        <source>Squelch</source>
        <translation>Rauschsperre</translation>
    </message>
    <message>
        <source>Audio only above the threshold.</source>
        <translation>Ton nur über der Schwelle.</translation>
    </message>
    <message>
        <source>Squelch threshold</source>
        <translation>Rauschsperrenschwelle</translation>
    </message>
    <message>
        <source>Level at which the squelch opens.</source>
        <translation>Pegel, bei dem die Rauschsperre öffnet.</translation>
    </message>
    <message>
        <source>Gain control</source>
        <translation>Verstärkungsregelung</translation>
    </message>
    <message>
        <source>How the gain follows the signal.</source>
        <translation>Wie die Verstärkung dem Signal folgt.</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Fixed gain of manual gain control.</source>
        <translation>Feste Verstärkung der Handregelung.</translation>
    </message>
    <message>
        <source>Attack time</source>
        <translation>Ansprechzeit</translation>
    </message>
    <message>
        <source>Time in which the gain falls for a strong signal.</source>
        <translation>Zeit, in der die Verstärkung bei starkem Signal fällt.</translation>
    </message>
    <message>
        <source>Decay time</source>
        <translation>Abklingzeit</translation>
    </message>
    <message>
        <source>Time in which the gain rises again.</source>
        <translation>Zeit, in der die Verstärkung wieder steigt.</translation>
    </message>
    <message>
        <source>Audio filter</source>
        <translation>Tonfilter</translation>
    </message>
    <message>
        <source>Filter in the audio path.</source>
        <translation>Filter im Tonweg.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Loudness at the operator&apos;s desk.</source>
        <translation>Lautstärke am Platz des Bedieners.</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Demodulated and recorded, but not heard.</source>
        <translation>Demoduliert und aufgezeichnet, aber nicht zu hören.</translation>
    </message>
    <message>
        <source>Sector active</source>
        <translation>Sektor aktiv</translation>
    </message>
    <message>
        <source>Bearings outside the sector are dropped.</source>
        <translation>Peilungen außerhalb des Sektors werden verworfen.</translation>
    </message>
    <message>
        <source>Start of the sector.</source>
        <translation>Beginn des Sektors.</translation>
    </message>
    <message>
        <source>End of the sector, clockwise.</source>
        <translation>Ende des Sektors im Uhrzeigersinn.</translation>
    </message>
    <message>
        <source>Bearing mode</source>
        <translation>Peilart</translation>
    </message>
    <message>
        <source>How bearings are taken.</source>
        <translation>Wie gepeilt wird.</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>Direction-finding method.</source>
        <translation>Peilverfahren.</translation>
    </message>
    <message>
        <source>DF bandwidth</source>
        <translation>Peilbandbreite</translation>
    </message>
    <message>
        <source>Bandwidth in which bearings are taken.</source>
        <translation>Bandbreite, in der gepeilt wird.</translation>
    </message>
    <message>
        <source>Integration time</source>
        <translation>Integrationszeit</translation>
    </message>
    <message>
        <source>Time over which one bearing is averaged.</source>
        <translation>Zeit, über die eine Peilung gemittelt wird.</translation>
    </message>
    <message>
        <source>Level from which bearings are taken.</source>
        <translation>Pegel, ab dem gepeilt wird.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Güte</translation>
    </message>
    <message>
        <source>Bearings of less quality are dropped.</source>
        <translation>Peilungen geringerer Güte werden verworfen.</translation>
    </message>
    <message>
        <source>North</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>What an azimuth counts from.</source>
        <translation>Von wo ein Azimut zählt.</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Added to each azimuth.</source>
        <translation>Wird zu jedem Azimut addiert.</translation>
    </message>
    <message>
        <source>The elevation is measured too.</source>
        <translation>Die Elevation wird mitgemessen.</translation>
    </message>
    <message>
        <source>Oldest bearing</source>
        <translation>Älteste Peilung</translation>
    </message>
    <message>
        <source>Older bearings are taken out of the histogram.</source>
        <translation>Ältere Peilungen werden aus dem Histogramm genommen.</translation>
    </message>
    <message>
        <source>Bearings for a result</source>
        <translation>Peilungen je Ergebnis</translation>
    </message>
    <message>
        <source>Number of bearings from which a result is shown.</source>
        <translation>Anzahl der Peilungen, ab der ein Ergebnis gezeigt wird.</translation>
    </message>
    <message>
        <source>Locate transmitter</source>
        <translation>Sender orten</translation>
    </message>
    <message>
        <source>Partner stations are asked for cross bearings.</source>
        <translation>Partnerstationen werden um Kreuzpeilungen gebeten.</translation>
    </message>
    <message>
        <source>Partner stations</source>
        <translation>Partnerstationen</translation>
    </message>
    <message>
        <source>Stations that take cross bearings.</source>
        <translation>Stationen, die Kreuzpeilungen machen.</translation>
    </message>
    <message>
        <source>Sector</source>
        <translation>Sektor</translation>
    </message>
    <message>
        <source>Sector of directions that are of interest.</source>
        <translation>Sektor der Richtungen, die von Interesse sind.</translation>
    </message>
    <message>
        <source>Level from</source>
        <translation>Pegel ab</translation>
    </message>
    <message>
        <source>Stronger signals are more urgent.</source>
        <translation>Stärkere Signale sind dringender.</translation>
    </message>
    <message>
        <source>Lasting</source>
        <translation>Dauer ab</translation>
    </message>
    <message>
        <source>Signals that last longer are more urgent.</source>
        <translation>Länger dauernde Signale sind dringender.</translation>
    </message>
    <message>
        <source>Preferred class</source>
        <translation>Bevorzugte Klasse</translation>
    </message>
    <message>
        <source>Class of signal that goes first.</source>
        <translation>Signalklasse, die zuerst drankommt.</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>How much the class counts beside level and duration.</source>
        <translation>Wie viel die Klasse neben Pegel und Dauer zählt.</translation>
    </message>
    <message>
        <source>Confidence from</source>
        <translation>Sicherheit ab</translation>
    </message>
    <message>
        <source>Confidence of the classifier.</source>
        <translation>Sicherheit des Klassifikators.</translation>
    </message>
    <message>
        <source>Shorter signals are not produced.</source>
        <translation>Kürzere Signale werden nicht produziert.</translation>
    </message>
    <message>
        <source>Only new signals</source>
        <translation>Nur neue Signale</translation>
    </message>
    <message>
        <source>Signals that were produced before are left out.</source>
        <translation>Schon produzierte Signale werden ausgelassen.</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>What is produced.</source>
        <translation>Was produziert wird.</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name of the spectral profile.</source>
        <translation>Name des Spektralprofils.</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>Empfindlichkeit</translation>
    </message>
    <message>
        <source>Sensitivity of the comparison.</source>
        <translation>Empfindlichkeit des Vergleichs.</translation>
    </message>
    <message>
        <source>Level from which shapes are compared.</source>
        <translation>Pegel, ab dem Formen verglichen werden.</translation>
    </message>
    <message>
        <source>Bandwidth from</source>
        <translation>Bandbreite ab</translation>
    </message>
    <message>
        <source>Narrower signals are left out.</source>
        <translation>Schmalere Signale werden ausgelassen.</translation>
    </message>
    <message>
        <source>Bandwidth to</source>
        <translation>Bandbreite bis</translation>
    </message>
    <message>
        <source>Wider signals are left out.</source>
        <translation>Breitere Signale werden ausgelassen.</translation>
    </message>
    <message>
        <source>Shapes</source>
        <translation>Formen</translation>
    </message>
    <message>
        <source>Shapes of the profile that are looked for; none means all.</source>
        <translation>Formen des Profils, nach denen gesucht wird; keine heißt alle.</translation>
    </message>
    <message>
        <source>Number of channels that follow signals.</source>
        <translation>Anzahl der Kanäle, die Signalen folgen.</translation>
    </message>
    <message>
        <source>Strategy</source>
        <translation>Strategie</translation>
    </message>
    <message>
        <source>Which signal gets the next free channel.</source>
        <translation>Welches Signal den nächsten freien Kanal bekommt.</translation>
    </message>
    <message>
        <source>Channel bandwidth</source>
        <translation>Kanalbandbreite</translation>
    </message>
    <message>
        <source>Bandwidth of each channel.</source>
        <translation>Bandbreite jedes Kanals.</translation>
    </message>
    <message>
        <source>A signal that moves less stays in its channel.</source>
        <translation>Ein Signal, das sich weniger bewegt, bleibt in seinem Kanal.</translation>
    </message>
    <message>
        <source>Hold time</source>
        <translation>Haltezeit</translation>
    </message>
    <message>
        <source>Time for which a channel waits for its signal to come back.</source>
        <translation>Zeit, die ein Kanal auf die Rückkehr seines Signals wartet.</translation>
    </message>
    <message>
        <source>Longest occupation</source>
        <translation>Längste Belegung</translation>
    </message>
    <message>
        <source>After this time a channel is given to the next signal.</source>
        <translation>Danach bekommt das nächste Signal den Kanal.</translation>
    </message>
    <message>
        <source>Level from which a signal gets a channel.</source>
        <translation>Pegel, ab dem ein Signal einen Kanal bekommt.</translation>
    </message>
    <message>
        <source>Keep while recording</source>
        <translation>Bei Aufzeichnung halten</translation>
    </message>
    <message>
        <source>A recording channel is not taken away.</source>
        <translation>Ein aufzeichnender Kanal wird nicht weggenommen.</translation>
    </message>
    <message>
        <source>Excluded frequencies</source>
        <translation>Ausgenommene Frequenzen</translation>
    </message>
    <message>
        <source>Signals at these frequencies get no channel.</source>
        <translation>Signale auf diesen Frequenzen bekommen keinen Kanal.</translation>
    </message>
    <message>
        <source>What makes a signal more urgent than others.</source>
        <translation>Was ein Signal dringender macht als andere.</translation>
    </message>
    <message>
        <source>Which signals are produced.</source>
        <translation>Welche Signale produziert werden.</translation>
    </message>
    <message>
        <source>Spectral detector</source>
        <translation>Spektraldetektor</translation>
    </message>
    <message>
        <source>Detection by the shape of the spectrum.</source>
        <translation>Erkennung an der Form des Spektrums.</translation>
    </message>
    <message>
        <source>Modulation</source>
        <translation>Modulation</translation>
    </message>
    <message>
        <source>Digital modulation of the signal.</source>
        <translation>Digitale Modulation des Signals.</translation>
    </message>
    <message>
        <source>Symbol rate</source>
        <translation>Symbolrate</translation>
    </message>
    <message>
        <source>Symbols in a second.</source>
        <translation>Symbole je Sekunde.</translation>
    </message>
    <message>
        <source>Estimate symbol rate</source>
        <translation>Symbolrate schätzen</translation>
    </message>
    <message>
        <source>The symbol rate is measured and followed.</source>
        <translation>Die Symbolrate wird gemessen und nachgeführt.</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Distance of the outer tones of a frequency-shift keying.</source>
        <translation>Abstand der äußeren Töne einer Frequenzumtastung.</translation>
    </message>
    <message>
        <source>Distance of the signal from the tuned frequency.</source>
        <translation>Abstand des Signals von der abgestimmten Frequenz.</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Invertiert</translation>
    </message>
    <message>
        <source>Mark and space are exchanged.</source>
        <translation>Zeichen- und Trennlage sind vertauscht.</translation>
    </message>
    <message>
        <source>Equalizer</source>
        <translation>Entzerrer</translation>
    </message>
    <message>
        <source>Evens out multipath propagation.</source>
        <translation>Gleicht Mehrwegeausbreitung aus.</translation>
    </message>
    <message>
        <source>Decoder</source>
        <translation>Dekoder</translation>
    </message>
    <message>
        <source>What the symbols are decoded with.</source>
        <translation>Womit die Symbole dekodiert werden.</translation>
    </message>
    <message>
        <source>Quality from</source>
        <translation>Güte ab</translation>
    </message>
    <message>
        <source>Poorer text is dropped.</source>
        <translation>Schlechterer Text wird verworfen.</translation>
    </message>
    <message>
        <source>Burst length</source>
        <translation>Burstlänge</translation>
    </message>
    <message>
        <source>Length of one burst; 0 for continuous signals.</source>
        <translation>Länge eines Bursts; 0 bei Dauersignalen.</translation>
    </message>
    <message>
        <source>Sync words</source>
        <translation>Synchronwörter</translation>
    </message>
    <message>
        <source>Bit patterns with which a message begins.</source>
        <translation>Bitmuster, mit denen eine Nachricht beginnt.</translation>
    </message>
    <message>
        <source>Classify</source>
        <translation>Klassifizieren</translation>
    </message>
    <message>
        <source>When a signal is classified.</source>
        <translation>Wann ein Signal klassifiziert wird.</translation>
    </message>
    <message>
        <source>Observation time</source>
        <translation>Beobachtungszeit</translation>
    </message>
    <message>
        <source>Time for which a signal is observed.</source>
        <translation>Zeit, die ein Signal beobachtet wird.</translation>
    </message>
    <message>
        <source>Less certain results are dropped.</source>
        <translation>Unsicherere Ergebnisse werden verworfen.</translation>
    </message>
    <message>
        <source>Signal to noise</source>
        <translation>Rauschabstand</translation>
    </message>
    <message>
        <source>Weaker signals are not classified.</source>
        <translation>Schwächere Signale werden nicht klassifiziert.</translation>
    </message>
    <message>
        <source>Bandwidth in which the signal is looked for.</source>
        <translation>Bandbreite, in der das Signal gesucht wird.</translation>
    </message>
    <message>
        <source>Stop at first result</source>
        <translation>Beim ersten Ergebnis enden</translation>
    </message>
    <message>
        <source>Ends with the first certain result.</source>
        <translation>Endet mit dem ersten sicheren Ergebnis.</translation>
    </message>
    <message>
        <source>Report unknown</source>
        <translation>Unbekannte melden</translation>
    </message>
    <message>
        <source>Signals without a class are reported too.</source>
        <translation>Auch Signale ohne Klasse werden gemeldet.</translation>
    </message>
    <message>
        <source>Most results</source>
        <translation>Höchstzahl Ergebnisse</translation>
    </message>
    <message>
        <source>Number of results kept for a signal.</source>
        <translation>Anzahl der Ergebnisse, die zu einem Signal behalten werden.</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Name of the library of known signals.</source>
        <translation>Name der Bibliothek bekannter Signale.</translation>
    </message>
    <message>
        <source>Searched classes</source>
        <translation>Gesuchte Klassen</translation>
    </message>
    <message>
        <source>Classes that are tried; none means all.</source>
        <translation>Klassen, die versucht werden; keine heißt alle.</translation>
    </message>
    <message>
        <source>Frequency that the receiver is tuned to.</source>
        <translation>Frequenz, auf die der Empfänger abgestimmt ist.</translation>
    </message>
    <message>
        <source>Bandwidth of the receiver.</source>
        <translation>Bandbreite des Empfängers.</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Attenuation mode</source>
        <translation>Dämpfungsart</translation>
    </message>
    <message>
        <source>How the input attenuation is set.</source>
        <translation>Wie die Eingangsdämpfung eingestellt wird.</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>Dämpfung</translation>
    </message>
    <message>
        <source>Input attenuation in the manual mode.</source>
        <translation>Eingangsdämpfung bei Einstellung von Hand.</translation>
    </message>
    <message>
        <source>Preselector</source>
        <translation>Vorselektion</translation>
    </message>
    <message>
        <source>The preselector is in the signal path.</source>
        <translation>Die Vorselektion liegt im Signalweg.</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Source of the reference frequency.</source>
        <translation>Quelle der Referenzfrequenz.</translation>
    </message>
    <message>
        <source>Correction of the reference frequency.</source>
        <translation>Korrektur der Referenzfrequenz.</translation>
    </message>
    <message>
        <source>Settling time</source>
        <translation>Einschwingzeit</translation>
    </message>
    <message>
        <source>Time after tuning before the first measurement.</source>
        <translation>Zeit vom Abstimmen bis zur ersten Messung.</translation>
    </message>
    <message>
        <source>Level from which a signal is present.</source>
        <translation>Pegel, ab dem ein Signal vorhanden ist.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Number of points of the transform.</source>
        <translation>Anzahl der Punkte der Transformation.</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Window of the transform.</source>
        <translation>Fenster der Transformation.</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>What becomes of successive spectra.</source>
        <translation>Was aus aufeinander folgenden Spektren wird.</translation>
    </message>
    <message>
        <source>Spectra per trace</source>
        <translation>Spektren je Spur</translation>
    </message>
    <message>
        <source>Number of spectra that make a trace.</source>
        <translation>Anzahl der Spektren, die eine Spur ergeben.</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <source>Share of samples that two spectra have in common.</source>
        <translation>Anteil der Abtastwerte, den zwei Spektren gemeinsam haben.</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Darstellbreite</translation>
    </message>
    <message>
        <source>Width of the shown spectrum.</source>
        <translation>Breite des gezeigten Spektrums.</translation>
    </message>
    <message>
        <source>Reference level</source>
        <translation>Referenzpegel</translation>
    </message>
    <message>
        <source>Level at the upper edge of the picture.</source>
        <translation>Pegel am oberen Bildrand.</translation>
    </message>
    <message>
        <source>Level range</source>
        <translation>Pegelbereich</translation>
    </message>
    <message>
        <source>Range of levels in the picture.</source>
        <translation>Bereich der Pegel im Bild.</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Bildabstand</translation>
    </message>
    <message>
        <source>Time between two pictures.</source>
        <translation>Zeit zwischen zwei Bildern.</translation>
    </message>
    <message>
        <source>Waterfall</source>
        <translation>Wasserfall</translation>
    </message>
    <message>
        <source>The history is shown as a waterfall.</source>
        <translation>Der Verlauf wird als Wasserfall gezeigt.</translation>
    </message>
    <message>
        <source>Noise floor</source>
        <translation>Rauschteppich</translation>
    </message>
    <message>
        <source>The noise floor is estimated and drawn.</source>
        <translation>Der Rauschteppich wird geschätzt und gezeichnet.</translation>
    </message>
    <message>
        <source>Level from which a frequency counts as occupied.</source>
        <translation>Pegel, ab dem eine Frequenz als belegt zählt.</translation>
    </message>
    <message>
        <source>Longest time on a free frequency.</source>
        <translation>Längste Zeit auf einer freien Frequenz.</translation>
    </message>
    <message>
        <source>Signal time</source>
        <translation>Signalzeit</translation>
    </message>
    <message>
        <source>Longest time on an occupied frequency.</source>
        <translation>Längste Zeit auf einer belegten Frequenz.</translation>
    </message>
    <message>
        <source>Measurement time</source>
        <translation>Messzeit</translation>
    </message>
    <message>
        <source>Time over which the level is measured.</source>
        <translation>Zeit, über die der Pegel gemessen wird.</translation>
    </message>
    <message>
        <source>Name of the band.</source>
        <translation>Name des Bandes.</translation>
    </message>
    <message>
        <source>First frequency of the scan.</source>
        <translation>Erste Frequenz des Suchlaufs.</translation>
    </message>
    <message>
        <source>Last frequency of the scan.</source>
        <translation>Letzte Frequenz des Suchlaufs.</translation>
    </message>
    <message>
        <source>Distance between two steps.</source>
        <translation>Abstand zweier Schritte.</translation>
    </message>
    <message>
        <source>Bandwidth at each step.</source>
        <translation>Bandbreite in jedem Schritt.</translation>
    </message>
    <message>
        <source>Threshold and times at one step.</source>
        <translation>Schwelle und Zeiten in einem Schritt.</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>The scan stays on an occupied frequency.</source>
        <translation>Der Suchlauf bleibt auf einer belegten Frequenz stehen.</translation>
    </message>
    <message>
        <source>How long the scan stays.</source>
        <translation>Wie lange der Suchlauf stehen bleibt.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>When the scan goes on.</source>
        <translation>Wann der Suchlauf weitergeht.</translation>
    </message>
    <message>
        <source>Scan mode</source>
        <translation>Suchlaufart</translation>
    </message>
    <message>
        <source>What the scan steps through.</source>
        <translation>Was der Suchlauf durchläuft.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Direction of the scan.</source>
        <translation>Richtung des Suchlaufs.</translation>
    </message>
    <message>
        <source>Number of cycles; 0 scans without end.</source>
        <translation>Anzahl der Durchläufe; 0 sucht ohne Ende.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause between two cycles.</source>
        <translation>Pause zwischen zwei Durchläufen.</translation>
    </message>
    <message>
        <source>Skip known signals</source>
        <translation>Bekannte Signale auslassen</translation>
    </message>
    <message>
        <source>Known transmitters are not reported again.</source>
        <translation>Bekannte Sender werden nicht erneut gemeldet.</translation>
    </message>
    <message>
        <source>Suppressed frequencies</source>
        <translation>Unterdrückte Frequenzen</translation>
    </message>
    <message>
        <source>Steps that are left out.</source>
        <translation>Schritte, die ausgelassen werden.</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Range of frequencies that the scan steps through.</source>
        <translation>Frequenzbereich, den der Suchlauf durchläuft.</translation>
    </message>
    <message>
        <source>When the scan stays on a signal.</source>
        <translation>Wann der Suchlauf auf einem Signal stehen bleibt.</translation>
    </message>
    <message>
        <source>Middle of the observed band.</source>
        <translation>Mitte des beobachteten Bandes.</translation>
    </message>
    <message>
        <source>Width of the observed band.</source>
        <translation>Breite des beobachteten Bandes.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Kind of short signal.</source>
        <translation>Art des kurzen Signals.</translation>
    </message>
    <message>
        <source>Duration from</source>
        <translation>Dauer von</translation>
    </message>
    <message>
        <source>Shorter signals are left out.</source>
        <translation>Kürzere Signale werden ausgelassen.</translation>
    </message>
    <message>
        <source>Duration to</source>
        <translation>Dauer bis</translation>
    </message>
    <message>
        <source>Longer signals are left out.</source>
        <translation>Längere Signale werden ausgelassen.</translation>
    </message>
    <message>
        <source>Bursts</source>
        <translation>Bursts</translation>
    </message>
    <message>
        <source>Number of bursts from which a signal is reported.</source>
        <translation>Anzahl der Bursts, ab der ein Signal gemeldet wird.</translation>
    </message>
    <message>
        <source>Level from which a burst counts.</source>
        <translation>Pegel, ab dem ein Burst zählt.</translation>
    </message>
    <message>
        <source>Hop rate</source>
        <translation>Sprungrate</translation>
    </message>
    <message>
        <source>Expected hops in a second.</source>
        <translation>Erwartete Sprünge je Sekunde.</translation>
    </message>
    <message>
        <source>Take bearings</source>
        <translation>Peilen</translation>
    </message>
    <message>
        <source>The direction of each burst is measured.</source>
        <translation>Die Richtung jedes Bursts wird gemessen.</translation>
    </message>
    <message>
        <source>Keep snapshot</source>
        <translation>Schnappschuss behalten</translation>
    </message>
    <message>
        <source>The samples of each burst are kept.</source>
        <translation>Die Abtastwerte jedes Bursts werden behalten.</translation>
    </message>
    <message>
        <source>Name under which the signal is reported.</source>
        <translation>Name, unter dem das Signal gemeldet wird.</translation>
    </message>
    <message>
        <source>Time of day, hours and minutes (UTC).</source>
        <translation>Tageszeit, Stunden und Minuten (UTC).</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Days on which alarms may be raised; none means every day.</source>
        <translation>Tage, an denen Alarm gegeben werden darf; keiner heißt jeden Tag.</translation>
    </message>
    <message>
        <source>The sub-job raises alarms.</source>
        <translation>Der Teilauftrag gibt Alarm.</translation>
    </message>
    <message>
        <source>Raised by</source>
        <translation>Ausgelöst durch</translation>
    </message>
    <message>
        <source>What raises the alarm.</source>
        <translation>Was den Alarm auslöst.</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Severity of the alarm.</source>
        <translation>Schwere des Alarms.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Limit for the level.</source>
        <translation>Grenze für den Pegel.</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Time for which the cause must last.</source>
        <translation>Zeit, die die Ursache andauern muss.</translation>
    </message>
    <message>
        <source>Repeat every</source>
        <translation>Wiederholen alle</translation>
    </message>
    <message>
        <source>The alarm is repeated while its cause lasts.</source>
        <translation>Der Alarm wird wiederholt, solange seine Ursache dauert.</translation>
    </message>
    <message>
        <source>Acoustic</source>
        <translation>Akustisch</translation>
    </message>
    <message>
        <source>The alarm is heard at the operator&apos;s desk.</source>
        <translation>Der Alarm ist am Platz des Bedieners zu hören.</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Quittieren</translation>
    </message>
    <message>
        <source>The alarm stays until the operator has seen it.</source>
        <translation>Der Alarm bleibt, bis der Bediener ihn gesehen hat.</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Text of the alarm.</source>
        <translation>Text des Alarms.</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Empfängerkreis</translation>
    </message>
    <message>
        <source>Desks and stations that get the alarm.</source>
        <translation>Plätze und Stationen, die den Alarm bekommen.</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>When alarms may be raised (UTC).</source>
        <translation>Wann Alarm gegeben werden darf (UTC).</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Ablage der Daten</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Where results are kept.</source>
        <translation>Wo die Ergebnisse aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Format of the files.</source>
        <translation>Format der Dateien.</translation>
    </message>
    <message>
        <source>Largest amount</source>
        <translation>Größte Menge</translation>
    </message>
    <message>
        <source>Amount of data of the sub-job.</source>
        <translation>Datenmenge des Teilauftrags.</translation>
    </message>
    <message>
        <source>Keep for</source>
        <translation>Aufbewahren</translation>
    </message>
    <message>
        <source>Time after which results are deleted.</source>
        <translation>Zeit, nach der Ergebnisse gelöscht werden.</translation>
    </message>
    <message>
        <source>Overwrite oldest</source>
        <translation>Älteste überschreiben</translation>
    </message>
    <message>
        <source>The oldest results make room for new ones.</source>
        <translation>Die ältesten Ergebnisse machen neuen Platz.</translation>
    </message>
    <message>
        <source>Warn at</source>
        <translation>Warnen bei</translation>
    </message>
    <message>
        <source>Fill level at which the operator is warned.</source>
        <translation>Füllstand, bei dem der Bediener gewarnt wird.</translation>
    </message>
    <message>
        <source>File names</source>
        <translation>Dateinamen</translation>
    </message>
    <message>
        <source>Pattern of the file names.</source>
        <translation>Muster der Dateinamen.</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>Words stored with each file.</source>
        <translation>Wörter, die mit jeder Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>Threshold is</source>
        <translation>Schwelle ist</translation>
    </message>
    <message>
        <source>What the threshold refers to.</source>
        <translation>Worauf sich die Schwelle bezieht.</translation>
    </message>
    <message>
        <source>Level from which an emission counts, in the absolute mode.</source>
        <translation>Pegel, ab dem eine Aussendung zählt, bei festem Pegel.</translation>
    </message>
    <message>
        <source>Above noise</source>
        <translation>Über dem Rauschen</translation>
    </message>
    <message>
        <source>Distance from the noise floor, in the other modes.</source>
        <translation>Abstand vom Rauschteppich in den anderen Arten.</translation>
    </message>
    <message>
        <source>Narrower emissions are left out.</source>
        <translation>Schmalere Aussendungen werden ausgelassen.</translation>
    </message>
    <message>
        <source>Wider emissions are left out.</source>
        <translation>Breitere Aussendungen werden ausgelassen.</translation>
    </message>
    <message>
        <source>Shorter emissions are left out.</source>
        <translation>Kürzere Aussendungen werden ausgelassen.</translation>
    </message>
    <message>
        <source>Merge within</source>
        <translation>Zusammenfassen bis</translation>
    </message>
    <message>
        <source>Emissions closer together are one.</source>
        <translation>Näher beieinander liegende Aussendungen sind eine.</translation>
    </message>
    <message>
        <source>False alarms</source>
        <translation>Fehlalarme</translation>
    </message>
    <message>
        <source>Probability of a detection without an emission.</source>
        <translation>Wahrscheinlichkeit einer Erkennung ohne Aussendung.</translation>
    </message>
    <message>
        <source>Track drift</source>
        <translation>Drift folgen</translation>
    </message>
    <message>
        <source>Emissions that drift are followed.</source>
        <translation>Driftenden Aussendungen wird gefolgt.</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maske</translation>
    </message>
    <message>
        <source>Name of the spectrum mask of known emissions.</source>
        <translation>Name der Spektrumsmaske bekannter Aussendungen.</translation>
    </message>
    <message>
        <source>Excluded bands</source>
        <translation>Ausgenommene Bänder</translation>
    </message>
    <message>
        <source>Names of bands in which nothing is detected.</source>
        <translation>Namen von Bändern, in denen nichts erkannt wird.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>What starts the job.</source>
        <translation>Was den Auftrag startet.</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>When the job starts (UTC).</source>
        <translation>Wann der Auftrag beginnt (UTC).</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>Endzeit</translation>
    </message>
    <message>
        <source>When the job ends (UTC).</source>
        <translation>Wann der Auftrag endet (UTC).</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>How long the job runs; 0 until it is ended.</source>
        <translation>Wie lange der Auftrag läuft; 0 bis er beendet wird.</translation>
    </message>
    <message>
        <source>Repetition</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>How often the job is repeated.</source>
        <translation>Wie oft der Auftrag wiederholt wird.</translation>
    </message>
    <message>
        <source>Days on which the job runs; none means every day.</source>
        <translation>Tage, an denen der Auftrag läuft; keiner heißt jeden Tag.</translation>
    </message>
    <message>
        <source>The more urgent job gets the receiver.</source>
        <translation>Der dringendere Auftrag bekommt den Empfänger.</translation>
    </message>
    <message>
        <source>Most runs</source>
        <translation>Höchstzahl Läufe</translation>
    </message>
    <message>
        <source>Number of runs; 0 without limit.</source>
        <translation>Anzahl der Läufe; 0 ohne Grenze.</translation>
    </message>
    <message>
        <source>Goes on when the receiver is free again.</source>
        <translation>Geht weiter, wenn der Empfänger wieder frei ist.</translation>
    </message>
    <message>
        <source>Release receiver</source>
        <translation>Empfänger freigeben</translation>
    </message>
    <message>
        <source>The receiver is released between two runs.</source>
        <translation>Der Empfänger wird zwischen zwei Läufen freigegeben.</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Group that is told about start and end.</source>
        <translation>Gruppe, der Beginn und Ende mitgeteilt werden.</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>Signals are recorded by themselves.</source>
        <translation>Signale werden selbsttätig aufgezeichnet.</translation>
    </message>
    <message>
        <source>What is recorded.</source>
        <translation>Was aufgezeichnet wird.</translation>
    </message>
    <message>
        <source>Started by</source>
        <translation>Ausgelöst von</translation>
    </message>
    <message>
        <source>What starts a recording.</source>
        <translation>Was eine Aufzeichnung auslöst.</translation>
    </message>
    <message>
        <source>Lead time</source>
        <translation>Vorlaufzeit</translation>
    </message>
    <message>
        <source>Time recorded before the start.</source>
        <translation>Zeit, die vor dem Beginn aufgezeichnet wird.</translation>
    </message>
    <message>
        <source>Follow-up time</source>
        <translation>Nachlaufzeit</translation>
    </message>
    <message>
        <source>Time recorded after the end.</source>
        <translation>Zeit, die nach dem Ende aufgezeichnet wird.</translation>
    </message>
    <message>
        <source>Shortest recording</source>
        <translation>Kürzeste Aufzeichnung</translation>
    </message>
    <message>
        <source>Shorter recordings are thrown away.</source>
        <translation>Kürzere Aufzeichnungen werden verworfen.</translation>
    </message>
    <message>
        <source>Longest recording</source>
        <translation>Längste Aufzeichnung</translation>
    </message>
    <message>
        <source>A longer one is split into several files.</source>
        <translation>Eine längere wird auf mehrere Dateien verteilt.</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Samples in a second.</source>
        <translation>Abtastwerte je Sekunde.</translation>
    </message>
    <message>
        <source>Text stored with each recording.</source>
        <translation>Text, der mit jeder Aufzeichnung gespeichert wird.</translation>
    </message>
    <message>
        <source>Names of the channels that are recorded; none means all.</source>
        <translation>Namen der Kanäle, die aufgezeichnet werden; keiner heißt alle.</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Identifier of the profile.</source>
        <translation>Kennung des Profils.</translation>
    </message>
    <message>
        <source>Name of the profile.</source>
        <translation>Name des Profils.</translation>
    </message>
    <message>
        <source>Settings of a fixed-frequency entry.</source>
        <translation>Einstellungen eines Eintrags fester Frequenz.</translation>
    </message>
    <message>
        <source>Short time</source>
        <translation>Kurzzeit</translation>
    </message>
    <message>
        <source>Settings of a short-time entry.</source>
        <translation>Einstellungen eines Kurzzeiteintrags.</translation>
    </message>
    <message>
        <source>Digital demodulation of the entry.</source>
        <translation>Digitale Demodulation des Eintrags.</translation>
    </message>
    <message>
        <source>Where the entry comes from.</source>
        <translation>Woher der Eintrag kommt.</translation>
    </message>
    <message>
        <source>Name of the list.</source>
        <translation>Name der Liste.</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Entries of the list.</source>
        <translation>Einträge der Liste.</translation>
    </message>
    <message>
        <source>Name of the signal.</source>
        <translation>Name des Signals.</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Class of the signal.</source>
        <translation>Klasse des Signals.</translation>
    </message>
    <message>
        <source>Frequency of the signal, when it is fixed.</source>
        <translation>Frequenz des Signals, wenn sie fest ist.</translation>
    </message>
    <message>
        <source>Bandwidth of the signal.</source>
        <translation>Bandbreite des Signals.</translation>
    </message>
    <message>
        <source>How urgent the signal is.</source>
        <translation>Wie dringend das Signal ist.</translation>
    </message>
    <message>
        <source>Frequencies at which the signal is expected.</source>
        <translation>Frequenzen, auf denen das Signal erwartet wird.</translation>
    </message>
    <message>
        <source>Name of this collection.</source>
        <translation>Name dieser Sammlung.</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>When a signal fits a description.</source>
        <translation>Wann ein Signal zu einer Beschreibung passt.</translation>
    </message>
    <message>
        <source>Match from</source>
        <translation>Übereinstimmung ab</translation>
    </message>
    <message>
        <source>Poorer matches are dropped.</source>
        <translation>Schlechtere Übereinstimmungen werden verworfen.</translation>
    </message>
    <message>
        <source>How far a signal may be from its frequency.</source>
        <translation>Wie weit ein Signal von seiner Frequenz entfernt sein darf.</translation>
    </message>
    <message>
        <source>Bandwidth tolerance</source>
        <translation>Bandbreitentoleranz</translation>
    </message>
    <message>
        <source>How much the bandwidth may differ.</source>
        <translation>Um wie viel die Bandbreite abweichen darf.</translation>
    </message>
    <message>
        <source>Time for which a signal is compared.</source>
        <translation>Zeit, die ein Signal verglichen wird.</translation>
    </message>
    <message>
        <source>Report others</source>
        <translation>Andere melden</translation>
    </message>
    <message>
        <source>Signals that fit no description are reported too.</source>
        <translation>Auch Signale, die zu keiner Beschreibung passen, werden gemeldet.</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Categories of descriptions in use; none means all.</source>
        <translation>Verwendete Kategorien von Beschreibungen; keine heißt alle.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>One kind of signal each.</source>
        <translation>Jeweils eine Art von Signal.</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Name under which a network is reported.</source>
        <translation>Name, unter dem ein Netz gemeldet wird.</translation>
    </message>
    <message>
        <source>Lower edge of the hopping band.</source>
        <translation>Unteres Ende des Sprungbands.</translation>
    </message>
    <message>
        <source>Upper edge of the hopping band.</source>
        <translation>Oberes Ende des Sprungbands.</translation>
    </message>
    <message>
        <source>Channel spacing</source>
        <translation>Kanalabstand</translation>
    </message>
    <message>
        <source>Distance between two hop channels.</source>
        <translation>Abstand zweier Sprungkanäle.</translation>
    </message>
    <message>
        <source>Hop rate from</source>
        <translation>Sprungrate von</translation>
    </message>
    <message>
        <source>Slower hoppers are left out.</source>
        <translation>Langsamere Springer werden ausgelassen.</translation>
    </message>
    <message>
        <source>Hop rate to</source>
        <translation>Sprungrate bis</translation>
    </message>
    <message>
        <source>Faster hoppers are left out.</source>
        <translation>Schnellere Springer werden ausgelassen.</translation>
    </message>
    <message>
        <source>Hop length</source>
        <translation>Sprunglänge</translation>
    </message>
    <message>
        <source>Longest time on one channel.</source>
        <translation>Längste Zeit auf einem Kanal.</translation>
    </message>
    <message>
        <source>Separate by</source>
        <translation>Trennen nach</translation>
    </message>
    <message>
        <source>What tells networks apart.</source>
        <translation>Woran Netze unterschieden werden.</translation>
    </message>
    <message>
        <source>Azimuth tolerance</source>
        <translation>Azimuttoleranz</translation>
    </message>
    <message>
        <source>Hops within this angle come from one transmitter.</source>
        <translation>Sprünge innerhalb dieses Winkels kommen von einem Sender.</translation>
    </message>
    <message>
        <source>Most networks</source>
        <translation>Höchstzahl Netze</translation>
    </message>
    <message>
        <source>Number of networks followed at a time.</source>
        <translation>Anzahl der Netze, denen zugleich gefolgt wird.</translation>
    </message>
    <message>
        <source>Recombine</source>
        <translation>Zusammensetzen</translation>
    </message>
    <message>
        <source>The hops of a network become one signal.</source>
        <translation>Die Sprünge eines Netzes werden zu einem Signal.</translation>
    </message>
    <message>
        <source>Expected frequencies</source>
        <translation>Erwartete Frequenzen</translation>
    </message>
    <message>
        <source>Channels known to belong to the hop set.</source>
        <translation>Kanäle, die bekanntermaßen zum Sprungvorrat gehören.</translation>
    </message>
    <message>
        <source>Compress</source>
        <translation>Komprimieren</translation>
    </message>
    <message>
        <source>Recorded data is compressed.</source>
        <translation>Aufgezeichnete Daten werden komprimiert.</translation>
    </message>
    <message>
        <source>Method of compression.</source>
        <translation>Kompressionsverfahren.</translation>
    </message>
    <message>
        <source>Quality that is kept by a method with loss.</source>
        <translation>Güte, die ein verlustbehaftetes Verfahren erhält.</translation>
    </message>
    <message>
        <source>Target ratio</source>
        <translation>Zielverhältnis</translation>
    </message>
    <message>
        <source>Amount before to amount after.</source>
        <translation>Menge vorher zu Menge nachher.</translation>
    </message>
    <message>
        <source>Largest rate</source>
        <translation>Größte Rate</translation>
    </message>
    <message>
        <source>Limit of the compressed stream.</source>
        <translation>Grenze des komprimierten Datenstroms.</translation>
    </message>
    <message>
        <source>Block length</source>
        <translation>Blocklänge</translation>
    </message>
    <message>
        <source>Length of one compressed block.</source>
        <translation>Länge eines komprimierten Blocks.</translation>
    </message>
    <message>
        <source>Silence below</source>
        <translation>Stille unter</translation>
    </message>
    <message>
        <source>What is weaker is not kept.</source>
        <translation>Schwächeres wird nicht behalten.</translation>
    </message>
    <message>
        <source>Keep original</source>
        <translation>Original behalten</translation>
    </message>
    <message>
        <source>The uncompressed data is kept too.</source>
        <translation>Die unkomprimierten Daten werden auch behalten.</translation>
    </message>
    <message>
        <source>Excluded</source>
        <translation>Ausgenommen</translation>
    </message>
    <message>
        <source>Content that is never compressed.</source>
        <translation>Inhalt, der nie komprimiert wird.</translation>
    </message>
    <message>
        <source>Activity detection</source>
        <translation>Aktivitätserkennung</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <translation>Algorithmus</translation>
    </message>
    <message>
        <source>Algorithm that finds activities.</source>
        <translation>Algorithmus, der Aktivitäten findet.</translation>
    </message>
    <message>
        <source>Level from which the channel is active.</source>
        <translation>Pegel, ab dem der Kanal aktiv ist.</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Hysterese</translation>
    </message>
    <message>
        <source>How far the level must fall to end an activity.</source>
        <translation>Wie weit der Pegel fallen muss, um eine Aktivität zu beenden.</translation>
    </message>
    <message>
        <source>Width of the channel.</source>
        <translation>Breite des Kanals.</translation>
    </message>
    <message>
        <source>Shorter activities are left out.</source>
        <translation>Kürzere Aktivitäten werden ausgelassen.</translation>
    </message>
    <message>
        <source>Release time</source>
        <translation>Abfallzeit</translation>
    </message>
    <message>
        <source>Time without a signal that ends an activity.</source>
        <translation>Zeit ohne Signal, die eine Aktivität beendet.</translation>
    </message>
    <message>
        <source>Occupancy window</source>
        <translation>Belegungsfenster</translation>
    </message>
    <message>
        <source>Time over which the occupancy is counted.</source>
        <translation>Zeit, über die die Belegung gezählt wird.</translation>
    </message>
    <message>
        <source>Occupancy limit</source>
        <translation>Belegungsgrenze</translation>
    </message>
    <message>
        <source>Occupancy from which the channel is busy.</source>
        <translation>Belegung, ab der der Kanal belegt ist.</translation>
    </message>
    <message>
        <source>Estimate noise</source>
        <translation>Rauschen schätzen</translation>
    </message>
    <message>
        <source>The noise floor is measured and followed.</source>
        <translation>Der Rauschteppich wird gemessen und nachgeführt.</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Name of the channel in the results.</source>
        <translation>Name des Kanals in den Ergebnissen.</translation>
    </message>
    <message>
        <source>Carriers that are no activity.</source>
        <translation>Träger, die keine Aktivität sind.</translation>
    </message>
    <message>
        <source>Startup modes</source>
        <translation>Startarten</translation>
    </message>
    <message>
        <source>Allowed modes, the preferred one first.</source>
        <translation>Erlaubte Arten, die bevorzugte zuerst.</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Path of the field below the parameter set.</source>
        <translation>Pfad des Feldes unterhalb des Parametersatzes.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Value of a new sub-job.</source>
        <translation>Wert eines neuen Teilauftrags.</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Smallest value that the receiver allows.</source>
        <translation>Kleinster Wert, den der Empfänger zulässt.</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Largest value that the receiver allows.</source>
        <translation>Größter Wert, den der Empfänger zulässt.</translation>
    </message>
    <message>
        <source>Distance of two values; 0 leaves every value open.</source>
        <translation>Abstand zweier Werte; 0 lässt jeden Wert zu.</translation>
    </message>
    <message>
        <source>Name of the item; for an enumeration the name of its value.</source>
        <translation>Name des Eintrags; bei einer Aufzählung der Name ihres Werts.</translation>
    </message>
    <message>
        <source>Number that stands for the item.</source>
        <translation>Zahl, die für den Eintrag steht.</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Items, in the order in which they are shown.</source>
        <translation>Einträge in der Reihenfolge, in der sie gezeigt werden.</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Position of the item that a new sub-job has, counted from 0.</source>
        <translation>Position des Eintrags, den ein neuer Teilauftrag hat, von 0 an gezählt.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>The text.</source>
        <translation>Der Text.</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Texts of a new sub-job.</source>
        <translation>Texte eines neuen Teilauftrags.</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Ja oder nein</translation>
    </message>
    <message>
        <source>The value.</source>
        <translation>Der Wert.</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Long number</source>
        <translation>Lange Zahl</translation>
    </message>
    <message>
        <source>Number in a range</source>
        <translation>Zahl in einem Bereich</translation>
    </message>
    <message>
        <source>Whole number in a range</source>
        <translation>Ganze Zahl in einem Bereich</translation>
    </message>
    <message>
        <source>Long number in a range</source>
        <translation>Lange Zahl in einem Bereich</translation>
    </message>
    <message>
        <source>List of texts</source>
        <translation>Liste von Texten</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Values, in the order in which they are shown.</source>
        <translation>Werte in der Reihenfolge, in der sie gezeigt werden.</translation>
    </message>
    <message>
        <source>Parameter set</source>
        <translation>Parametersatz</translation>
    </message>
    <message>
        <source>Name of the parameter set.</source>
        <translation>Name des Parametersatzes.</translation>
    </message>
    <message>
        <source>Parameter sets</source>
        <translation>Parametersätze</translation>
    </message>
    <message>
        <source>One node for each parameter set.</source>
        <translation>Ein Knoten für jeden Parametersatz.</translation>
    </message>
    <message>
        <source>Type of the component.</source>
        <translation>Typ der Komponente.</translation>
    </message>
    <message>
        <source>Name of the component in the component table.</source>
        <translation>Name der Komponente in der Komponententabelle.</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <source>A job may do without the component.</source>
        <translation>Ein Auftrag kann ohne die Komponente auskommen.</translation>
    </message>
    <message>
        <source>Startup modes that the receiver allows.</source>
        <translation>Startarten, die der Empfänger zulässt.</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Komponenten</translation>
    </message>
    <message>
        <source>Components of the receiver.</source>
        <translation>Komponenten des Empfängers.</translation>
    </message>
    <message>
        <source>Name of the receiver.</source>
        <translation>Name des Empfängers.</translation>
    </message>
    <message>
        <source>Kind of the receiver.</source>
        <translation>Art des Empfängers.</translation>
    </message>
    <message>
        <source>Receiver or group of receivers that the file stands for.</source>
        <translation>Empfänger oder Empfängergruppe, für die die Datei steht.</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Übergeordnet</translation>
    </message>
    <message>
        <source>Base resource out of which this one is taken.</source>
        <translation>Basisressource, der diese entnommen ist.</translation>
    </message>
    <message>
        <source>Connectable</source>
        <translation>Verbindbar</translation>
    </message>
    <message>
        <source>Base resources that can be connected, separated by commas.</source>
        <translation>Basisressourcen, die sich verbinden lassen, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Number of receivers of this kind.</source>
        <translation>Anzahl der Empfänger dieser Art.</translation>
    </message>
    <message>
        <source>Version of the file&apos;s schema.</source>
        <translation>Version des Schemas der Datei.</translation>
    </message>
    <message>
        <source>Analogue demodulation of the entry.</source>
        <translation>Analoge Demodulation des Eintrags.</translation>
    </message>
    <message>
        <source>Region active</source>
        <translation>Gebiet aktiv</translation>
    </message>
    <message>
        <source>Transmitters that are located outside the region are dropped.</source>
        <translation>Sender, die außerhalb des Gebiets geortet werden, werden verworfen.</translation>
    </message>
    <message>
        <source>West</source>
        <translation>Westen</translation>
    </message>
    <message>
        <source>Longitude of the western edge.</source>
        <translation>Geografische Länge des westlichen Rands.</translation>
    </message>
    <message>
        <source>South</source>
        <translation>Süden</translation>
    </message>
    <message>
        <source>Latitude of the southern edge.</source>
        <translation>Geografische Breite des südlichen Rands.</translation>
    </message>
    <message>
        <source>East</source>
        <translation>Osten</translation>
    </message>
    <message>
        <source>Longitude of the eastern edge.</source>
        <translation>Geografische Länge des östlichen Rands.</translation>
    </message>
    <message>
        <source>Latitude of the northern edge.</source>
        <translation>Geografische Breite des nördlichen Rands.</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Ecken</translation>
    </message>
    <message>
        <source>Longitude and latitude of each corner of a polygon, as in 4.5 58.25; none: a rectangle.</source>
        <translation>Geografische Länge und Breite jeder Ecke eines Polygons, etwa 4.5 58.25; keine: ein Rechteck.</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Gebiet</translation>
    </message>
    <message>
        <source>Region of the earth that is of interest.</source>
        <translation>Gebiet der Erde, das von Interesse ist.</translation>
    </message>
</context>
<context>
    <name>JobXml::Suggestion</name>
    <message>
        <source> Did you mean &quot;%1&quot;?</source>
        <translation> Ist „%1“ gemeint?</translation>
    </message>
</context>
<context>
    <name>JobXml::ValueText</name>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source> in %1</source>
        <translation> in %1</translation>
    </message>
    <message>
        <source>%1 is outside %2</source>
        <translation>%1 liegt außerhalb von %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>„%1“ ist weder wahr noch falsch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of %2</source>
        <translation>„%1“ ist keines von %2</translation>
    </message>
</context>
<context>
    <name>MapCanvas</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>%1 of %2 may not be deleted</source>
        <translation>%1 von %2 dürfen nicht gelöscht werden</translation>
    </message>
    <message>
        <source>%1 objects are selected</source>
        <translation>%1 Objekte sind ausgewählt</translation>
    </message>
    <message>
        <source>Draw %1: a click or Enter sets a point, a double click or Enter again ends, Backspace takes the last point back, Escape gives it up.</source>
        <translation>%1 zeichnen: Klick oder Eingabetaste setzt einen Punkt, Doppelklick oder nochmals Eingabetaste beendet, Rücktaste nimmt den letzten Punkt zurück, Escape bricht ab.</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkte</translation>
    </message>
    <message>
        <source>A polygon has three points at least.</source>
        <translation>Ein Polygon hat mindestens drei Punkte.</translation>
    </message>
    <message>
        <source>Tab selects an object, arrows shift the map, + and - zoom.</source>
        <translation>Tab wählt ein Objekt, Pfeiltasten verschieben die Karte, + und - ändern den Maßstab.</translation>
    </message>
    <message>
        <source>%1 is selected. Alt+arrows move it, Ctrl+arrows by a pixel.</source>
        <translation>%1 ist gewählt. Alt und Pfeiltasten verschieben es, Strg und Pfeiltasten um ein Pixel.</translation>
    </message>
</context>
<context>
    <name>MapConnection</name>
    <message>
        <source>it does not read</source>
        <translation>es liest nicht</translation>
    </message>
    <message>
        <source>it does not keep to the rules</source>
        <translation>es hält sich nicht an die Regeln</translation>
    </message>
    <message>
        <source>it draws more than the map can hold</source>
        <translation>es zeichnet mehr, als die Karte fassen kann</translation>
    </message>
    <message>
        <source>it speaks version %1, the map version %2</source>
        <translation>es spricht Version %1, die Karte Version %2</translation>
    </message>
    <message>
        <source>%1 has come</source>
        <translation>%1 ist gekommen</translation>
    </message>
</context>
<context>
    <name>MapControl</name>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Karte</translation>
    </message>
    <message>
        <source>Opens the map with the regions of the settings.</source>
        <translation>Öffnet die Karte mit den Gebieten der Einstellungen.</translation>
    </message>
    <message>
        <source>The map is open in a window of its own.</source>
        <translation>Die Karte ist in einem eigenen Fenster geöffnet.</translation>
    </message>
    <message>
        <source>The map is being opened.</source>
        <translation>Die Karte wird geöffnet.</translation>
    </message>
    <message>
        <source>Map: linked</source>
        <translation>Karte: verbunden</translation>
    </message>
    <message>
        <source>Map: none</source>
        <translation>Karte: keine</translation>
    </message>
    <message>
        <source>Regions of settings are shown on the map.</source>
        <translation>Gebiete von Einstellungen werden auf der Karte gezeigt.</translation>
    </message>
    <message>
        <source>There is no map. View &gt; Map opens one.</source>
        <translation>Es gibt keine Karte. Ansicht &gt; Karte öffnet eine.</translation>
    </message>
    <message>
        <source>Job editor</source>
        <translation>Auftragseditor</translation>
    </message>
    <message>
        <source>The map program could not be started.</source>
        <translation>Das Kartenprogramm konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>It is expected as %1. Install it there, or start a map program by hand: the editor finds it by itself.</source>
        <translation>Es wird als %1 erwartet. Installieren Sie es dort, oder starten Sie ein Kartenprogramm von Hand: der Editor findet es von selbst.</translation>
    </message>
</context>
<context>
    <name>MapPainter</name>
    <message>
        <source>%1° E</source>
        <translation>%1° O</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>%1° W</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>%1° N</translation>
    </message>
    <message>
        <source>%1° S</source>
        <translation>%1° S</translation>
    </message>
</context>
<context>
    <name>MapServer</name>
    <message>
        <source>another map program runs already</source>
        <translation>es läuft schon ein anderes Kartenprogramm</translation>
    </message>
    <message>
        <source>a client without a name</source>
        <translation>einem Programm ohne Namen</translation>
    </message>
    <message>
        <source>Link to %1 closed: %2</source>
        <translation>Verbindung zu %1 geschlossen: %2</translation>
    </message>
    <message>
        <source>%1 has gone</source>
        <translation>%1 ist gegangen</translation>
    </message>
</context>
<context>
    <name>MapWindow</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Karte</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>B&amp;earbeiten</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Whole &amp;world</source>
        <translation>Ganze &amp;Welt</translation>
    </message>
    <message>
        <source>All &amp;objects</source>
        <translation>Alle &amp;Objekte</translation>
    </message>
    <message>
        <source>&amp;Layers</source>
        <translation>&amp;Ebenen</translation>
    </message>
    <message>
        <source>Layer without a name</source>
        <translation>Ebene ohne Namen</translation>
    </message>
    <message>
        <source>&amp;Shown</source>
        <translation>&amp;Sichtbar</translation>
    </message>
</context>
<context>
    <name>MinimalPlugin</name>
    <message>
        <source>Sub-job</source>
        <translation>Teilauftrag</translation>
    </message>
    <message>
        <source>Tunes one receiver for each sub-job.</source>
        <translation>Stimmt für jeden Teilauftrag einen Empfänger ab.</translation>
    </message>
</context>
<context>
    <name>PageWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Save as...</source>
        <translation>&amp;Speichern unter...</translation>
    </message>
    <message>
        <source>Save the page</source>
        <translation>Seite speichern</translation>
    </message>
    <message>
        <source>Web pages (*.html);;PDF files (*.pdf)</source>
        <translation>Webseiten (*.html);;PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>The page was not saved: %1</source>
        <translation>Die Seite wurde nicht gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>PluginKit::HeldSet</name>
    <message>
        <source>%1/%2 cannot be written into a job file</source>
        <translation>%1/%2 lässt sich nicht in eine Auftragsdatei schreiben</translation>
    </message>
    <message>
        <source>%1/%2 was outside what the receiver takes; the nearest limit counts</source>
        <translation>%1/%2 lag außerhalb dessen, was der Empfänger annimmt; es gilt die nächste Grenze</translation>
    </message>
    <message>
        <source>%1/%2 does not fit the receiver, which keeps its own value</source>
        <translation>%1/%2 passt nicht zum Empfänger, der seinen eigenen Wert behält</translation>
    </message>
</context>
<context>
    <name>PluginKit::JobPlaces</name>
    <message>
        <source>%1 is lost: a job file cannot hold it</source>
        <translation>%1 geht verloren: in einer Auftragsdatei ist dafür kein Platz</translation>
    </message>
    <message>
        <source>%1/%2 is lost: the parameter set has no such field</source>
        <translation>%1/%2 geht verloren: der Parametersatz hat kein solches Feld</translation>
    </message>
    <message>
        <source>%1/%2 is lost: its field does not take &quot;%3&quot;</source>
        <translation>%1/%2 geht verloren: sein Feld nimmt „%3“ nicht an</translation>
    </message>
</context>
<context>
    <name>PluginKit::KitFactory</name>
    <message>
        <source>uses receivers of type %1 only</source>
        <translation>verwendet nur Empfänger vom Typ %1</translation>
    </message>
    <message>
        <source>is not for jobs of this type</source>
        <translation>ist nicht für Aufträge dieses Typs</translation>
    </message>
</context>
<context>
    <name>PluginKit::Region</name>
    <message>
        <source>West %1°, south %2°, east %3°, north %4°</source>
        <translation>Westen %1°, Süden %2°, Osten %3°, Norden %4°</translation>
    </message>
    <message>
        <source>Polygon with %1 corners: %2</source>
        <translation>Polygon mit %1 Ecken: %2</translation>
    </message>
    <message>
        <source>Corner %1 is no longitude and latitude: &quot;%2&quot;</source>
        <translation>Ecke %1 ist keine Länge und Breite: „%2“</translation>
    </message>
    <message>
        <source>A polygon has at least three corners</source>
        <translation>Ein Polygon hat mindestens drei Ecken</translation>
    </message>
    <message>
        <source>The eastern edge of the region is not east of the western one</source>
        <translation>Der östliche Rand des Gebiets liegt nicht östlich vom westlichen</translation>
    </message>
    <message>
        <source>The northern edge of the region is not north of the southern one</source>
        <translation>Der nördliche Rand des Gebiets liegt nicht nördlich vom südlichen</translation>
    </message>
</context>
<context>
    <name>PluginKit::RegionBar</name>
    <message>
        <source>Show region on the map</source>
        <translation>Gebiet auf der Karte zeigen</translation>
    </message>
    <message>
        <source>Draw region on the map</source>
        <translation>Gebiet auf der Karte zeichnen</translation>
    </message>
    <message>
        <source>No map is open.</source>
        <translation>Keine Karte ist geöffnet.</translation>
    </message>
    <message>
        <source>Selects the region on the map. Only active regions are there.</source>
        <translation>Wählt das Gebiet auf der Karte aus. Nur aktive Gebiete sind dort.</translation>
    </message>
    <message>
        <source>Set the corners on the map; the region becomes this polygon.</source>
        <translation>Ecken auf der Karte setzen; das Gebiet wird zu diesem Polygon.</translation>
    </message>
    <message>
        <source>Set the corners of the region on the map.</source>
        <translation>Setzen Sie die Ecken des Gebiets auf der Karte.</translation>
    </message>
    <message>
        <source>Finish the polygon that is being drawn on the map first.</source>
        <translation>Beenden Sie zuerst das Polygon, das auf der Karte gezeichnet wird.</translation>
    </message>
</context>
<context>
    <name>PluginKit::SettingNode</name>
    <message>
        <source>There is no editor for these settings. They stay as they are.</source>
        <translation>Für diese Einstellungen gibt es keinen Editor. Sie bleiben, wie sie sind.</translation>
    </message>
</context>
<context>
    <name>PluginKit::SubjobNode</name>
    <message>
        <source>The installation does not offer the receiver %1</source>
        <translation>Die Anlage bietet den Empfänger %1 nicht an</translation>
    </message>
    <message>
        <source>The receiver does not offer the start-up mode &quot;%1&quot; for this type of job</source>
        <translation>Der Empfänger bietet die Startart „%1“ für diese Auftragsart nicht an</translation>
    </message>
    <message>
        <source>Sub-job</source>
        <translation>Teilauftrag</translation>
    </message>
    <message>
        <source>Jobs of this type have no detectors</source>
        <translation>Aufträge dieser Art haben keine Detektoren</translation>
    </message>
    <message>
        <source>The receiver does not offer the detector &quot;%1&quot;</source>
        <translation>Der Empfänger bietet den Detektor „%1“ nicht an</translation>
    </message>
</context>
<context>
    <name>PluginPage</name>
    <message>
        <source>In use: %1</source>
        <translation>In Gebrauch: %1</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Files in the plug-in folders</source>
        <translation>Dateien in den Plug-in-Ordnern</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Befund</translation>
    </message>
</context>
<context>
    <name>ProblemsPane</name>
    <message>
        <source>Problems of the job</source>
        <translation>Probleme des Auftrags</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ProductionPlugin</name>
    <message>
        <source>Production</source>
        <translation>Produktion</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message>
        <source>Tuner</source>
        <translation>Tuner</translation>
    </message>
    <message>
        <source>Demodulation</source>
        <translation>Demodulation</translation>
    </message>
    <message>
        <source>Digital demodulation</source>
        <translation>Digitale Demodulation</translation>
    </message>
    <message>
        <source>Classifier</source>
        <translation>Klassifikator</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Produces the content of signals on fixed frequencies.</source>
        <translation>Produziert den Inhalt von Signalen auf festen Frequenzen.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover jobs</source>
        <translation>Aufträge wiederherstellen</translation>
    </message>
    <message>
        <source>The job editor ended before these jobs were saved. A recovered job is opened with its changes; its file stays as it is until you save.</source>
        <translation>Der Auftragseditor wurde beendet, bevor diese Aufträge gespeichert waren. Ein wiederhergestellter Auftrag wird mit seinen Änderungen geöffnet; seine Datei bleibt, wie sie ist, bis Sie speichern.</translation>
    </message>
    <message>
        <source>Jobs that were not saved</source>
        <translation>Nicht gespeicherte Aufträge</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Last change (UTC)</source>
        <translation>Letzte Änderung (UTC)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>&amp;Verwerfen...</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>nie gespeichert</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Give the changes of &quot;%1&quot; up for good?</source>
        <translation>Die Änderungen von „%1“ endgültig aufgeben?</translation>
    </message>
</context>
<context>
    <name>ReportLayer</name>
    <message>
        <source>The name of an attribute holds a wrong character</source>
        <translation>Der Name eines Attributs enthält ein falsches Zeichen</translation>
    </message>
    <message>
        <source>Elements are nested more than 256 levels deep</source>
        <translation>Elemente sind mehr als 256 Ebenen tief geschachtelt</translation>
    </message>
    <message>
        <source>The root is &lt;%1&gt; instead of &lt;%2&gt;</source>
        <translation>Die Wurzel ist &lt;%1&gt; statt &lt;%2&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is one element too many</source>
        <translation>&lt;%1&gt; ist ein Element zu viel</translation>
    </message>
    <message>
        <source>Reading was stopped</source>
        <translation>Das Lesen wurde angehalten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of %2</source>
        <translation>„%1“ ist kein Wert von %2</translation>
    </message>
    <message>
        <source>The text is longer than 64 Mi characters</source>
        <translation>Der Text ist länger als 64 Mi Zeichen</translation>
    </message>
    <message>
        <source>The text holds a NUL character</source>
        <translation>Der Text enthält ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>A document type is not allowed</source>
        <translation>Ein Dokumenttyp ist nicht erlaubt</translation>
    </message>
    <message>
        <source>An element has more than 256 attributes</source>
        <translation>Ein Element hat mehr als 256 Attribute</translation>
    </message>
</context>
<context>
    <name>ResourcePane</name>
    <message>
        <source>Receivers that the job takes</source>
        <translation>Empfänger, die der Auftrag belegt</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 too many</source>
        <translation>%1 zu viel</translation>
    </message>
    <message>
        <source>not offered by the installation</source>
        <translation>von der Anlage nicht angeboten</translation>
    </message>
    <message>
        <source>Sub-jobs</source>
        <translation>Teilaufträge</translation>
    </message>
</context>
<context>
    <name>RuleRunModel</name>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Set off by, or what was changed</source>
        <translation>Ausgelöst durch, oder was geändert wurde</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Zeit (UTC)</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>%1 (not in the script)</source>
        <translation>%1 (nicht im Skript)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>It ran for too long. What it had changed stays changed.</source>
        <translation>Sie lief zu lange. Was sie geändert hat, bleibt geändert.</translation>
    </message>
    <message>
        <source>Further runs</source>
        <translation>Weitere Läufe</translation>
    </message>
</context>
<context>
    <name>RulesPane</name>
    <message>
        <source>by rule</source>
        <translation>durch Regel</translation>
    </message>
    <message>
        <source>Set by the rule %1 at %2 UTC. Before: %3</source>
        <translation>Gesetzt von der Regel %1 um %2 UTC. Vorher: %3</translation>
    </message>
    <message>
        <source>Rules that ran</source>
        <translation>Gelaufene Regeln</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Regeln filtern</translation>
    </message>
    <message>
        <source>Changes &amp;without a rule</source>
        <translation>Änderungen &amp;ohne Regel</translation>
    </message>
    <message>
        <source>Shows also values for which the script has no function</source>
        <translation>Zeigt auch Werte, für die das Skript keine Funktion hat</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
</context>
<context>
    <name>SearchFactory</name>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchlauf</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Tuner</source>
        <translation>Tuner</translation>
    </message>
    <message>
        <source>Demodulation</source>
        <translation>Demodulation</translation>
    </message>
    <message>
        <source>Direction finding</source>
        <translation>Peilung</translation>
    </message>
    <message>
        <source>Searches frequency ranges for signals.</source>
        <translation>Sucht in Frequenzbereichen nach Signalen.</translation>
    </message>
    <message>
        <source>The scan ends before it begins</source>
        <translation>Der Suchlauf endet, bevor er beginnt</translation>
    </message>
    <message>
        <source>The scan has a single step</source>
        <translation>Der Suchlauf hat nur einen Schritt</translation>
    </message>
</context>
<context>
    <name>Session::ApplySettings</name>
    <message>
        <source>Apply %1</source>
        <translation>%1 übernehmen</translation>
    </message>
</context>
<context>
    <name>Session::CsvReader</name>
    <message>
        <source>it has more than %1 fields</source>
        <translation>sie hat mehr als %1 Felder</translation>
    </message>
    <message>
        <source>a quote is opened and not closed</source>
        <translation>ein Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <source>something stands behind a closing quote</source>
        <translation>hinter einem schließenden Anführungszeichen steht etwas</translation>
    </message>
    <message>
        <source>a quote stands in a field without quotes</source>
        <translation>in einem Feld ohne Anführungszeichen steht ein Anführungszeichen</translation>
    </message>
</context>
<context>
    <name>Session::Finding</name>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>Session::FrequencyImport</name>
    <message>
        <source>number of fields: %1, expected: %2</source>
        <translation>Anzahl der Felder: %1, erwartet: %2</translation>
    </message>
    <message>
        <source>its first line does not name the columns Frequency and Mode</source>
        <translation>die erste Zeile nennt die Spalten Frequency und Mode nicht</translation>
    </message>
    <message>
        <source>CHIRP memories (CSV)</source>
        <translation>CHIRP-Speicherplätze (CSV)</translation>
    </message>
    <message>
        <source>the name has more than %1 characters</source>
        <translation>der Name hat mehr als %1 Zeichen</translation>
    </message>
    <message>
        <source>the name holds something that is no UTF-8</source>
        <translation>der Name enthält etwas, das kein UTF-8 ist</translation>
    </message>
    <message>
        <source>the name holds a control character</source>
        <translation>der Name enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is no whole number of hertz</source>
        <translation>%1 ist keine ganze Zahl von Hertz</translation>
    </message>
    <message>
        <source>%1 is out of range</source>
        <translation>%1 ist zu groß</translation>
    </message>
    <message>
        <source>%1 is outside of 1 Hz to %2</source>
        <translation>%1 liegt außerhalb von 1 Hz bis %2</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>abgelehnt: %1</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (üblich)</translation>
    </message>
    <message>
        <source>named %1</source>
        <translation>Name: %1</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;</source>
        <translation>ein Format „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>it is no text in UTF-8</source>
        <translation>sie ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>it has no entries</source>
        <translation>sie hat keine Einträge</translation>
    </message>
    <message>
        <source>it has more than %1 entries</source>
        <translation>sie hat mehr als %1 Einträge</translation>
    </message>
    <message>
        <source>reading was stopped</source>
        <translation>das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>it has no frequency</source>
        <translation>die Frequenz fehlt</translation>
    </message>
    <message>
        <source>it has no mode</source>
        <translation>die Betriebsart fehlt</translation>
    </message>
    <message>
        <source>the mode %1 has no counterpart</source>
        <translation>die Betriebsart %1 hat keine Entsprechung</translation>
    </message>
    <message>
        <source>bandwidth: %1</source>
        <translation>Bandbreite: %1</translation>
    </message>
    <message>
        <source>it stands before the column names</source>
        <translation>die Zeile steht vor den Spaltennamen</translation>
    </message>
    <message>
        <source>list of tags</source>
        <translation>Liste der Schlagwörter</translation>
    </message>
    <message>
        <source>gqrx bookmarks (bookmarks.csv)</source>
        <translation>gqrx-Lesezeichen (bookmarks.csv)</translation>
    </message>
    <message>
        <source>it is no object with frequency and mode</source>
        <translation>kein Objekt mit frequency und mode</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>sie ist beschädigt: %1</translation>
    </message>
    <message>
        <source>it has no object &quot;bookmarks&quot;</source>
        <translation>ein Objekt „bookmarks“ fehlt</translation>
    </message>
    <message>
        <source>another bookmark of this name follows</source>
        <translation>ein weiteres Lesezeichen dieses Namens folgt</translation>
    </message>
    <message>
        <source>SDR++ bookmarks (JSON)</source>
        <translation>SDR++-Lesezeichen (JSON)</translation>
    </message>
    <message>
        <source>the element &quot;%1&quot; is no MemoryEntry</source>
        <translation>das Element „%1“ ist kein MemoryEntry</translation>
    </message>
    <message>
        <source>elements are nested more than %1 levels</source>
        <translation>Elemente sind mehr als %1-fach geschachtelt</translation>
    </message>
    <message>
        <source>there are elements within &quot;%1&quot;</source>
        <translation>innerhalb von „%1“ stehen Elemente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is given twice</source>
        <translation>„%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>it begins with &quot;%1&quot;, not with &quot;%2&quot;</source>
        <translation>sie beginnt mit „%1“, nicht mit „%2“</translation>
    </message>
    <message>
        <source>SDR# frequencies (frequencies.xml)</source>
        <translation>SDR#-Frequenzen (frequencies.xml)</translation>
    </message>
</context>
<context>
    <name>Session::FrequencyListReport</name>
    <message>
        <source>short-time signals</source>
        <translation>Kurzzeitsignale</translation>
    </message>
    <message>
        <source>Lists of other programs are read by: jedtool freq import %1 --as FORMAT --out LIST</source>
        <translation>Listen anderer Programme liest: jedtool freq import %1 --as FORMAT --out LISTE</translation>
    </message>
    <message>
        <source>no plug-in can use the list</source>
        <translation>kein Plug-in kann die Liste verwenden</translation>
    </message>
    <message>
        <source>It must have entries, and either all of them tuner settings or all of them short-time settings.</source>
        <translation>Sie muss Einträge haben, und entweder alle mit Tuner-Einstellungen oder alle mit Kurzzeiteinstellungen.</translation>
    </message>
</context>
<context>
    <name>Session::FrequencyModel</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: the receiver covers %2</source>
        <translation>%1: der Empfänger deckt %2 ab</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4</source>
        <translation>%1: %2, %3, %4</translation>
    </message>
    <message>
        <source>The installation does not offer the receiver</source>
        <translation>Die Anlage hat den Empfänger nicht</translation>
    </message>
    <message>
        <source>%1: covered by the receiver</source>
        <translation>%1: vom Empfänger abgedeckt</translation>
    </message>
    <message>
        <source>from %1 Hz to %2 Hz, %3 wide</source>
        <translation>von %1 Hz bis %2 Hz, Breite %3</translation>
    </message>
</context>
<context>
    <name>Session::FrequencyUse</name>
    <message>
        <source>%1: the scan goes through stored channels, which the job does not name</source>
        <translation>%1: der Suchlauf geht durch gespeicherte Kanäle, die der Auftrag nicht nennt</translation>
    </message>
    <message>
        <source>%1: the range from %2 to %3 ends before it begins</source>
        <translation>%1: der Bereich von %2 bis %3 endet, bevor er beginnt</translation>
    </message>
    <message>
        <source>The settings name no frequencies</source>
        <translation>Die Einstellungen nennen keine Frequenzen</translation>
    </message>
    <message>
        <source>What the receiver covers cannot be told: its values have no limits</source>
        <translation>Was der Empfänger abdeckt, lässt sich nicht sagen: Seine Werte haben keine Grenzen</translation>
    </message>
</context>
<context>
    <name>Session::HeadlessDialogs</name>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>message box: %1
%2
answered: %3
</source>
        <translation>Meldungsfenster: %1
%2
beantwortet: %3
</translation>
    </message>
</context>
<context>
    <name>Session::Installation</name>
    <message>
        <source>there is no translation into %1, the language of the installation</source>
        <translation>es gibt keine Übersetzung in %1, die Sprache der Anlage</translation>
    </message>
    <message>
        <source>the installation folder %1 does not exist</source>
        <translation>der Ordner %1 der Anlage ist nicht vorhanden</translation>
    </message>
    <message>
        <source>%1 is no installation: it has no %2</source>
        <translation>%1 ist keine Anlage: %2 fehlt</translation>
    </message>
</context>
<context>
    <name>Session::JobComposer</name>
    <message>
        <source>The receiver keeps the values that it has.</source>
        <translation>Der Empfänger behält die Werte, die er hat.</translation>
    </message>
    <message>
        <source>there is no type of job &quot;%1&quot;</source>
        <translation>es gibt keine Auftragsart „%1“</translation>
    </message>
    <message>
        <source>Types are %1.</source>
        <translation>Die Arten sind %1.</translation>
    </message>
    <message>
        <source>no job was begun</source>
        <translation>es wurde kein Auftrag begonnen</translation>
    </message>
    <message>
        <source>Begin with: new TYPE [NAME]</source>
        <translation>Beginn mit: new TYPE [NAME]</translation>
    </message>
    <message>
        <source>the installation offers no &quot;%1&quot;</source>
        <translation>die Anlage bietet „%1“ nicht an</translation>
    </message>
    <message>
        <source>jedtool resources list shows what it offers.</source>
        <translation>jedtool resources list zeigt, was sie anbietet.</translation>
    </message>
    <message>
        <source>there is no sub-job %1</source>
        <translation>es gibt keinen Teilauftrag %1</translation>
    </message>
    <message>
        <source>The job has %1.</source>
        <translation>Der Auftrag hat %1.</translation>
    </message>
    <message>
        <source>there is no sub-job</source>
        <translation>es gibt keinen Teilauftrag</translation>
    </message>
    <message>
        <source>Add one with: add TYPE/BASE</source>
        <translation>Hinzufügen mit: add TYPE/BASE</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;</source>
        <translation>%1 hat keinen Wert „%2“</translation>
    </message>
    <message>
        <source>jedtool resources show %1 lists them.</source>
        <translation>jedtool resources show %1 zählt sie auf.</translation>
    </message>
    <message>
        <source>sub-job %1, %2</source>
        <translation>Teilauftrag %1, %2</translation>
    </message>
    <message>
        <source>%1 offers no start-up mode for a job of type %2</source>
        <translation>%1 bietet keine Startart für Aufträge der Art %2</translation>
    </message>
    <message>
        <source>It offers %1.</source>
        <translation>Angeboten wird %1.</translation>
    </message>
    <message>
        <source>%1 does not offer the start-up mode &quot;%2&quot; for a job of type %3</source>
        <translation>%1 bietet die Startart „%2“ für Aufträge der Art %3 nicht an</translation>
    </message>
</context>
<context>
    <name>Session::JobDocument</name>
    <message>
        <source>cannot be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>This is no job file, or it is damaged.</source>
        <translation>Das ist keine Auftragsdatei, oder sie ist beschädigt.</translation>
    </message>
    <message>
        <source>The text is kept as it stands, but it counts for nothing.</source>
        <translation>Der Text bleibt, wie er ist, gilt aber nicht.</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>nicht schreibbar: %1</translation>
    </message>
    <message>
        <source>The file is as it was before.</source>
        <translation>Die Datei ist, wie sie vorher war.</translation>
    </message>
    <message>
        <source>The job does not follow the schema of job files.</source>
        <translation>Der Auftrag entspricht nicht dem Schema der Auftragsdateien.</translation>
    </message>
</context>
<context>
    <name>Session::JobProblems</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The job takes %1 of %2, the installation has %3</source>
        <translation>Der Auftrag belegt %1 von %2, die Anlage hat %3</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>Session::JobReport</name>
    <message>
        <source>sub-job %1, %2</source>
        <translation>Teilauftrag %1, %2</translation>
    </message>
    <message>
        <source>the installation does not offer this receiver</source>
        <translation>die Anlage bietet diesen Empfänger nicht an</translation>
    </message>
    <message>
        <source>the receiver does not offer the start-up mode &quot;%1&quot; for this type of job</source>
        <translation>der Empfänger bietet die Startart „%1“ für diese Auftragsart nicht an</translation>
    </message>
    <message>
        <source>It offers %1.</source>
        <translation>Angeboten wird %1.</translation>
    </message>
    <message>
        <source>the receiver has %1, which a job file cannot hold</source>
        <translation>der Empfänger hat %1, wofür in einer Auftragsdatei kein Platz ist</translation>
    </message>
    <message>
        <source>The receiver keeps the values that it has.</source>
        <translation>Der Empfänger behält die Werte, die er hat.</translation>
    </message>
    <message>
        <source>the receiver does not have the parameter set %1</source>
        <translation>der Empfänger hat den Parametersatz %1 nicht</translation>
    </message>
    <message>
        <source>%1/%2 does not fit the receiver</source>
        <translation>%1/%2 passt nicht zum Empfänger</translation>
    </message>
    <message>
        <source>jedtool resources show %1 tells what does.</source>
        <translation>jedtool resources show %1 sagt, was passt.</translation>
    </message>
    <message>
        <source>%1 does not come back from the value tree as it was</source>
        <translation>%1 kommt aus dem Wertebaum nicht so zurück, wie es war</translation>
    </message>
    <message>
        <source>saving and loading again does not give the same job</source>
        <translation>Speichern und erneutes Laden ergibt nicht denselben Auftrag</translation>
    </message>
    <message>
        <source>saving brings the file into our layout</source>
        <translation>Speichern bringt die Datei in unsere Form</translation>
    </message>
    <message>
        <source>Nothing that it says is changed.</source>
        <translation>An ihrem Inhalt ändert sich nichts.</translation>
    </message>
</context>
<context>
    <name>Session::JobSession</name>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>%1 duplizieren</translation>
    </message>
    <message>
        <source>Paste %1</source>
        <translation>%1 einfügen</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>Sub-job %1</source>
        <translation>Teilauftrag %1</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; claims it but cannot read it.</source>
        <translation>Das Plug-in „%1“ ist zuständig, kann ihn aber nicht lesen.</translation>
    </message>
    <message>
        <source>No plug-in for this kind of job claims it.</source>
        <translation>Kein Plug-in für diese Auftragsart ist zuständig.</translation>
    </message>
    <message>
        <source>is kept as it is but cannot be edited</source>
        <translation>bleibt, wie er ist, lässt sich aber nicht bearbeiten</translation>
    </message>
    <message>
        <source>Import into %1</source>
        <translation>In %1 importieren</translation>
    </message>
</context>
<context>
    <name>Session::JobSummary</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of this page, as HTML names it</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>Sub-jobs</source>
        <translation>Teilaufträge</translation>
    </message>
    <message>
        <source>All times of day are UTC.</source>
        <translation>Alle Uhrzeiten sind in UTC.</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>None were found.</source>
        <translation>Es wurden keine gefunden.</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Receivers</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Vorhanden</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>not offered</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>%1 too many</source>
        <translation>%1 zu viel</translation>
    </message>
    <message>
        <source>Frequencies</source>
        <translation>Frequenzen</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>The receiver covers %1</source>
        <translation>Der Empfänger deckt %1 ab</translation>
    </message>
    <message>
        <source>Revisit times (estimates)</source>
        <translation>Wiederkehrzeiten (geschätzt)</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>cannot be told</source>
        <translation>lässt sich nicht sagen</translation>
    </message>
    <message>
        <source>A revisit time is an estimate for a range in which every frequency is free: for each step the settling time of the tuner and the longer one of dwell time and measurement time, then the pause.</source>
        <translation>Eine Wiederkehrzeit ist eine Schätzung für einen Bereich, in dem jede Frequenz frei ist: für jeden Schritt die Einschwingzeit des Tuners und die längere von Verweilzeit und Messzeit, danach die Pause.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, which the installation does not offer</source>
        <translation>%1, den die Anlage nicht hat</translation>
    </message>
    <message>
        <source>Sub-job</source>
        <translation>Teilauftrag</translation>
    </message>
    <message>
        <source>Receiver&apos;s name in the job</source>
        <translation>Name des Empfängers im Auftrag</translation>
    </message>
    <message>
        <source>Record location</source>
        <translation>Aufzeichnungsort</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>none: %1</source>
        <translation>keines: %1</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>The job has no sub-jobs.</source>
        <translation>Der Auftrag hat keine Teilaufträge.</translation>
    </message>
</context>
<context>
    <name>Session::ListPreview</name>
    <message>
        <source>the list has no entries</source>
        <translation>die Liste hat keine Einträge</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Frequency-store list</source>
        <translation>Frequenzspeicherliste</translation>
    </message>
    <message>
        <source>the plug-in takes nothing of it</source>
        <translation>das Plug-in übernimmt nichts davon</translation>
    </message>
</context>
<context>
    <name>Session::PluginHost</name>
    <message>
        <source>plug-in</source>
        <translation>Plug-in</translation>
    </message>
</context>
<context>
    <name>Session::Recovery</name>
    <message>
        <source>was saved by another program after the recovered job was read from it</source>
        <translation>wurde von einem anderen Programm gespeichert, nachdem der wiederhergestellte Auftrag daraus gelesen worden war</translation>
    </message>
    <message>
        <source>Compare the two before you save.</source>
        <translation>Vergleichen Sie beide, bevor Sie speichern.</translation>
    </message>
    <message>
        <source>the folder %1 cannot be written to</source>
        <translation>in den Ordner %1 kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>Session::ResourceReport</name>
    <message>
        <source>no component is called &quot;%1&quot;</source>
        <translation>keine Komponente heißt „%1“</translation>
    </message>
    <message>
        <source>there is no parameter set &quot;%1&quot;</source>
        <translation>es gibt keinen Parametersatz „%1“</translation>
    </message>
    <message>
        <source>%1 has two values &quot;%2&quot;</source>
        <translation>%1 hat zwei Werte „%2“</translation>
    </message>
    <message>
        <source>%1 has no field &quot;%2&quot;</source>
        <translation>%1 hat kein Feld „%2“</translation>
    </message>
    <message>
        <source>The library skips the file. Mend it, or export it again.</source>
        <translation>Die Bibliothek überspringt die Datei. Berichtigen Sie sie, oder exportieren Sie sie neu.</translation>
    </message>
    <message>
        <source>version &quot;%1&quot; is outdated, 1.1 or later is needed</source>
        <translation>Version „%1“ ist veraltet, nötig ist 1.1 oder neuer</translation>
    </message>
    <message>
        <source>The library skips the file and warns. Export the tuner properties again.</source>
        <translation>Die Bibliothek überspringt die Datei und warnt. Exportieren Sie die Empfängerbeschreibung neu.</translation>
    </message>
    <message>
        <source>the parent &quot;%1&quot; is not among the resources of type %2</source>
        <translation>die übergeordnete Ressource „%1“ ist keine der Ressourcen vom Typ %2</translation>
    </message>
    <message>
        <source>The resource counts as one without a parent.</source>
        <translation>Die Ressource gilt als eine ohne übergeordnete.</translation>
    </message>
    <message>
        <source>the parents of %1 lead back to it</source>
        <translation>die übergeordneten Ressourcen von %1 führen zu ihr zurück</translation>
    </message>
    <message>
        <source>Take the parent out of one of the files in the circle.</source>
        <translation>Nehmen Sie die übergeordnete Ressource aus einer der Dateien im Kreis heraus.</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>The library takes the file all the same; what it does not understand is left out.</source>
        <translation>Die Bibliothek nimmt die Datei trotzdem; was sie nicht versteht, bleibt weg.</translation>
    </message>
    <message>
        <source>%1 is described by %2 already</source>
        <translation>%1 ist schon durch %2 beschrieben</translation>
    </message>
    <message>
        <source>Take one of the two files away, or give it another base resource.</source>
        <translation>Entfernen Sie eine der beiden Dateien, oder geben Sie ihr eine andere Basisressource.</translation>
    </message>
    <message>
        <source>the connectable resource &quot;%1&quot; is not there</source>
        <translation>die verbindbare Ressource „%1“ ist nicht vorhanden</translation>
    </message>
</context>
<context>
    <name>Session::RevisitTime</name>
    <message>
        <source>The scan stays on an occupied frequency until the operator lets it go on</source>
        <translation>Der Suchlauf bleibt auf einer belegten Frequenz, bis der Bediener ihn weiterlaufen lässt</translation>
    </message>
    <message>
        <source>The scan stays on an occupied frequency until the signal is lost</source>
        <translation>Der Suchlauf bleibt auf einer belegten Frequenz, bis das Signal verschwindet</translation>
    </message>
    <message>
        <source>Each occupied frequency adds up to %1</source>
        <translation>Jede belegte Frequenz kostet bis zu %1 mehr</translation>
    </message>
    <message>
        <source>%1 steps of %2</source>
        <translation>%1 Schritte zu %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The job does not name the stored channels</source>
        <translation>Der Auftrag nennt die gespeicherten Kanäle nicht</translation>
    </message>
    <message>
        <source>The scan ends before it begins</source>
        <translation>Der Suchlauf endet, bevor er beginnt</translation>
    </message>
    <message>
        <source>The scan has no step width</source>
        <translation>Der Suchlauf hat keine Schrittweite</translation>
    </message>
    <message>
        <source>The bandwidth of the tuner is not known</source>
        <translation>Die Bandbreite des Tuners ist nicht bekannt</translation>
    </message>
    <message>
        <source>At the ends of the range up to twice as long, since the direction changes</source>
        <translation>An den Enden des Bereichs bis zu doppelt so lang, weil die Richtung wechselt</translation>
    </message>
    <message>
        <source>The scan runs once</source>
        <translation>Der Suchlauf läuft einmal</translation>
    </message>
    <message>
        <source>No entry of the list is used</source>
        <translation>Kein Eintrag der Liste wird verwendet</translation>
    </message>
    <message>
        <source>%1 steps</source>
        <translation>%1 Schritte</translation>
    </message>
</context>
<context>
    <name>Session::SaveFile</name>
    <message>
        <source>it is no regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>der Ordner %1 ist nicht vorhanden</translation>
    </message>
    <message>
        <source>not everything could be written, the disk may be full</source>
        <translation>nicht alles konnte geschrieben werden, vielleicht ist der Datenträger voll</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
</context>
<context>
    <name>Session::Scenario</name>
    <message>
        <source>new TYPE [NAME]</source>
        <translation>new TYPE [NAME]</translation>
    </message>
    <message>
        <source>open FILE (job editor)</source>
        <translation>open FILE (Auftragseditor)</translation>
    </message>
    <message>
        <source>add TYPE/BASE [STARTUP-MODE]</source>
        <translation>add TYPE/BASE [STARTUP-MODE]</translation>
    </message>
    <message>
        <source>set SET/FIELD VALUE</source>
        <translation>set SET/FIELD VALUE</translation>
    </message>
    <message>
        <source>select NUMBER</source>
        <translation>select NUMBER</translation>
    </message>
    <message>
        <source>expect subjobs|SET/FIELD VALUE</source>
        <translation>expect subjobs|SET/FIELD VALUE</translation>
    </message>
    <message>
        <source>save FILE</source>
        <translation>save FILE</translation>
    </message>
    <message>
        <source>picture FILE (job editor)</source>
        <translation>picture FILE (Auftragseditor)</translation>
    </message>
    <message>
        <source>dialog TYPE DETECTOR FILE (job editor)</source>
        <translation>dialog TYPE DETECTOR FILE (Auftragseditor)</translation>
    </message>
    <message>
        <source>Write: %1</source>
        <translation>Schreibweise: %1</translation>
    </message>
    <message>
        <source>Verbs are %1.%2</source>
        <translation>Verben sind %1.%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no verb of a scenario</source>
        <translation>„%1“ ist kein Verb eines Szenarios</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with %2 arguments</source>
        <translation>„%1“ nimmt keine %2 Argumente</translation>
    </message>
    <message>
        <source>a quote is not closed</source>
        <translation>ein Anführungszeichen ist nicht geschlossen</translation>
    </message>
    <message>
        <source>wait SECONDS (job editor)</source>
        <translation>wait SEKUNDEN (Auftragseditor)</translation>
    </message>
    <message>
        <source>import FILE [FORMAT] (job editor, --plugin)</source>
        <translation>import DATEI [FORMAT] (Auftragseditor, --plugin)</translation>
    </message>
    <message>
        <source>map FILE (job editor)</source>
        <translation>map DATEI (Auftragseditor)</translation>
    </message>
    <message>
        <source>preview LIST FILE (job editor)</source>
        <translation>preview LISTE FILE (Auftragseditor)</translation>
    </message>
    <message>
        <source>dock NAME FILE (job editor)</source>
        <translation>dock NAME DATEI (Auftragseditor)</translation>
    </message>
    <message>
        <source>window summary|apply|plugins FILE (job editor)</source>
        <translation>window summary|apply|plugins DATEI (Auftragseditor)</translation>
    </message>
</context>
<context>
    <name>Session::ScenarioRunner</name>
    <message>
        <source>&quot;%1&quot; is a step for the job editor</source>
        <translation>„%1“ ist ein Schritt für den Auftragseditor</translation>
    </message>
    <message>
        <source>Run it with: jobeditor --batch FILE</source>
        <translation>Ausführen mit: jobeditor --batch FILE</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a sub-job</source>
        <translation>„%1“ ist keine Nummer eines Teilauftrags</translation>
    </message>
    <message>
        <source>%1 is &quot;%2&quot;, not &quot;%3&quot; as expected</source>
        <translation>%1 ist „%2“ und nicht wie erwartet „%3“</translation>
    </message>
</context>
<context>
    <name>Session::SessionRunner</name>
    <message>
        <source>&quot;%1&quot; is no verb of a scenario</source>
        <translation>„%1“ ist kein Verb eines Szenarios</translation>
    </message>
    <message>
        <source>there is no type of job &quot;%1&quot;</source>
        <translation>es gibt keine Auftragsart „%1“</translation>
    </message>
    <message>
        <source>%1 does not offer such a start-up mode for this kind of job</source>
        <translation>%1 bietet eine solche Startart für diese Auftragsart nicht an</translation>
    </message>
    <message>
        <source>no plug-in takes a sub-job on %1 in this kind of job</source>
        <translation>kein Plug-in nimmt einen Teilauftrag auf %1 in dieser Auftragsart</translation>
    </message>
    <message>
        <source>the installation offers no &quot;%1&quot;</source>
        <translation>die Anlage bietet „%1“ nicht an</translation>
    </message>
    <message>
        <source>the sub-job cannot have &quot;%1&quot;</source>
        <translation>der Teilauftrag kann „%1“ nicht haben</translation>
    </message>
    <message>
        <source>%1 has no field &quot;%2&quot;</source>
        <translation>%1 hat kein Feld „%2“</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 nimmt „%2“ nicht an</translation>
    </message>
    <message>
        <source>there is no sub-job %1</source>
        <translation>es gibt keinen Teilauftrag %1</translation>
    </message>
    <message>
        <source>the sub-job has no &quot;%1&quot;</source>
        <translation>der Teilauftrag hat kein „%1“</translation>
    </message>
    <message>
        <source>%1 is &quot;%2&quot;, not &quot;%3&quot; as expected</source>
        <translation>%1 ist „%2“ und nicht wie erwartet „%3“</translation>
    </message>
    <message>
        <source>there are no windows to be drawn</source>
        <translation>es gibt keine Fenster zu zeichnen</translation>
    </message>
    <message>
        <source>Run it with the job editor.</source>
        <translation>Führen Sie es mit dem Auftragseditor aus.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 ist nicht schreibbar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time to wait</source>
        <translation>„%1“ ist keine Wartezeit</translation>
    </message>
    <message>
        <source>there is no format of lists &quot;%1&quot;</source>
        <translation>ein Listenformat „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>Formats are %1.</source>
        <translation>Formate sind %1.</translation>
    </message>
    <message>
        <source>%1 is not imported: %2</source>
        <translation>%1 wird nicht importiert: %2</translation>
    </message>
    <message>
        <source>there is no sub-job that takes a list</source>
        <translation>es gibt keinen Teilauftrag, der eine Liste übernimmt</translation>
    </message>
</context>
<context>
    <name>Session::SettingTreeModel</name>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Kept as it is in the job file. %1</source>
        <translation>Bleibt, wie es in der Auftragsdatei ist. %1</translation>
    </message>
</context>
<context>
    <name>Session::TunerItem</name>
    <message>
        <source>the range %1 is empty</source>
        <translation>der Bereich %1 ist leer</translation>
    </message>
    <message>
        <source>the default %1 is outside the range %2</source>
        <translation>die Vorgabe %1 liegt außerhalb des Bereichs %2</translation>
    </message>
    <message>
        <source>the step %1 is negative</source>
        <translation>der Schritt %1 ist negativ</translation>
    </message>
    <message>
        <source>the range %1 reaches beyond %2, which a job file can hold</source>
        <translation>der Bereich %1 reicht über %2 hinaus, was eine Auftragsdatei fassen kann</translation>
    </message>
    <message>
        <source>the default %1 is outside %2, which a job file can hold</source>
        <translation>die Vorgabe %1 liegt außerhalb von %2, was eine Auftragsdatei fassen kann</translation>
    </message>
    <message>
        <source>the default is item %1 of %2</source>
        <translation>die Vorgabe ist Eintrag %1 von %2</translation>
    </message>
    <message>
        <source>the item &quot;%1&quot; is none of %2</source>
        <translation>der Eintrag „%1“ ist keines von %2</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>What is to be monitored?</source>
        <translation>Was soll überwacht werden?</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Neuer Auftrag</translation>
    </message>
    <message>
        <source>Recent jobs</source>
        <translation>Zuletzt geöffnete Aufträge</translation>
    </message>
    <message>
        <source>Example jobs</source>
        <translation>Beispielaufträge</translation>
    </message>
    <message>
        <source>None yet.</source>
        <translation>Noch keine.</translation>
    </message>
</context>
<context>
    <name>TracePane</name>
    <message>
        <source>Time (UTC)</source>
        <translation>Zeit (UTC)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Filter messages</source>
        <translation>Meldungen filtern</translation>
    </message>
    <message>
        <source>Traced messages</source>
        <translation>Aufgezeichnete Meldungen</translation>
    </message>
</context>
<context>
    <name>TreePane</name>
    <message>
        <source>Filter settings</source>
        <translation>Einstellungen filtern</translation>
    </message>
    <message>
        <source>Settings of the job</source>
        <translation>Einstellungen des Auftrags</translation>
    </message>
</context>
<context>
    <name>VelmoGui::ParameterSetEditor</name>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>VelmoGui::TABWIDGET_INTERNAL::AddButton</name>
    <message>
        <source>Add Tab</source>
        <translation>Reiter hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>VelmoGui::TextList</name>
    <message>
        <source>Add an entry (Insert)</source>
        <translation>Eintrag hinzufügen (Einfg)</translation>
    </message>
    <message>
        <source>Remove the entry (Delete)</source>
        <translation>Eintrag entfernen (Entf)</translation>
    </message>
    <message>
        <source>%1: add an entry</source>
        <translation>%1: Eintrag hinzufügen</translation>
    </message>
    <message>
        <source>%1: remove the entry</source>
        <translation>%1: Eintrag entfernen</translation>
    </message>
</context>
</TS>
