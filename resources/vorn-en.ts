<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
<context>
    <name>Vorn::GraphEditorDrop</name>
    <message>
        <source>Ajouter vos données</source>
        <translation>Add your data</translation>
    </message>
    <message>
        <source>Déposer ici une sauvegarde de ratios de pics</source>
        <translation>Drop here a peaks ratio dataset</translation>
    </message>
</context>
<context>
    <name>GraphCtrl</name>
    <message>
        <source>Échantillon %1</source>
        <translation>Sample %1</translation>
    </message>
</context>
<context>
    <name>GraphEditorRibbon</name>
    <message>
        <source>Creation de graphiques Vorn</source>
        <translation>Vorn graph creation</translation>
    </message>
    <message>
        <source>Vorn Graph</source>
        <translation>Vorn Graph</translation>
    </message>
    <message>
        <source>Vorn Graphs</source>
        <translation>Vorn Graphs</translation>
    </message>
</context>
<context>
    <name>VKRibbonChildWizard</name>
    <message>
        <source>Choix d'un graphique Vorn</source>
        <translation>Vorn graph selection</translation>
    </message>
</context>
<context>
    <name>ObjectSelectorDatabaseModel</name>
    <message>
        <source>Comments</source>
        <translation>Comments</translation>
    </message>
    <message>
        <source>ExpectedAnalysisType</source>
        <translation>ExpectedAnalysisType</translation>
    </message>
    <message>
        <source>ExpectedUnit</source>
        <translation>ExpectedUnit</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formula</translation>
    </message>
    <message>
        <source>Graphs</source>
        <translation>Graphs</translation>
    </message>
    <message>
        <source>Literature</source>
        <translation>Literature</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>Overlays</translation>
    </message>
    <message>
        <source>ProcessType</source>
        <translation>ProcessType</translation>
    </message>
</context>
<context>
    <name>ObjectSelectorEditor</name>
    <message>
        <source>Cocher les éléments sélectionés</source>
        <translation>Check selected items</translation>
    </message>
    <message>
        <source>Cocher tous les éléments</source>
        <translation>Check all items</translation>
    </message>
    <message>
        <source>Et</source>
        <translation>And</translation>
    </message>
    <message>
        <source>Filtres</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>Recherche</source>
        <translation>Search</translation>
    </message>
</context>
</TS>
