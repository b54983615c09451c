var scenario = [
    {
        "hint": qsTr("Welcome"),
        "group": [
        {
            "command": "presetData,meadow",
            "condition": "click,",
            "followWindow": "MainWindow",
            "hint": qsTr("<b>Welcome to the Map Workshop!</b><p>In a few minutes you will start a game of your own, paint its map and bring somebody to life.</p>Press <b>Next</b> to begin."),
            "icon": "eye"
        },
        {
            "condition": "click,",
            "followWindow": "MainWindow",
            "hint": qsTr("This is the <b>map</b>, the world of your game. All that you draw appears here at once."),
            "icon": "eye",
            "target": "mapArea",
            "x": 737,
            "y": 236
        }
]
    },
    {
        "hint": qsTr("A game of your own"),
        "group": [
        {
            "condition": "windowState,NewProject,open",
            "followWindow": "MainWindow",
            "hint": qsTr("Every game begins with a project. Click <b>New Project</b>."),
            "icon": "click",
            "target": "action:New Project",
            "x": 18,
            "y": 40
        },
        {
            "condition": "textLength,>=,6",
            "followWindow": "NewProject",
            "hint": qsTr("Type a <b>title</b> for your game. Six letters or more, please."),
            "icon": "keyboard",
            "target": "NewProject\/title",
            "x": 249,
            "y": 41
        },
        {
            "condition": "checked,example,1",
            "followWindow": "NewProject",
            "hint": qsTr("Tick this box, and you need not start with an empty world."),
            "icon": "click",
            "target": "NewProject\/example@0.05,0.5",
            "x": 150,
            "y": 193
        },
        {
            "condition": "windowState,NewProject,ok",
            "followWindow": "NewProject",
            "hint": qsTr("That is all it takes. Press <b>OK</b>."),
            "icon": "click",
            "target": "NewProject\/ok",
            "x": 199,
            "y": 238
        }
]
    },
    {
        "hint": qsTr("Painting"),
        "group": [
        {
            "condition": "list,1",
            "followWindow": "MapEditLeftPanelItem",
            "hint": qsTr("Time to paint! Choose the <b>flowers</b> among the tiles."),
            "icon": "click",
            "target": "listBox1[1]",
            "x": 60,
            "y": 72
        },
        {
            "condition": "action,Flood Fill,",
            "followWindow": "MainWindow",
            "hint": qsTr("Take the <b>bucket</b>. It fills everything that is connected."),
            "icon": "click",
            "target": "action:Flood Fill",
            "x": 271,
            "y": 40
        },
        {
            "condition": "mouseEvent,Map,click",
            "followWindow": "MainWindow",
            "hint": qsTr("Click the <b>little island</b> and watch it bloom."),
            "icon": "click",
            "target": "Map@0.9,0.78",
            "x": 1057,
            "y": 524
        },
        {
            "condition": "action,Undo,",
            "followWindow": "MainWindow",
            "hint": qsTr("Too many flowers? <b>Undo</b> takes back whatever you have drawn."),
            "icon": "click",
            "target": "action:Undo",
            "x": 60,
            "y": 40
        }
]
    },
    {
        "hint": qsTr("Somebody to meet"),
        "group": [
        {
            "condition": "action,Event,",
            "followWindow": "MainWindow",
            "hint": qsTr("Somebody should live here. Switch from the map to its <b>events</b>."),
            "icon": "click",
            "target": "action:Event",
            "x": 165,
            "y": 40
        },
        {
            "condition": "windowState,EventEditorMain,open",
            "followWindow": "MainWindow",
            "hint": qsTr("<b>Double-click</b> the spot where somebody is to stand."),
            "icon": "doubleClick",
            "target": "Map@0.6,0.65",
            "x": 769,
            "y": 460
        },
        {
            "condition": "textLength,>=,3",
            "followWindow": "EventEditorMain",
            "hint": qsTr("Who is it? Type a <b>name</b>."),
            "icon": "keyboard",
            "target": "EventEditorMain\/name",
            "x": 249,
            "y": 41
        },
        {
            "condition": "checked,walkAnime,1",
            "followWindow": "EventEditorMain",
            "hint": qsTr("Nobody stands quite still: turn the <b>walking animation</b> on."),
            "icon": "click",
            "target": "EventEditorMain\/walkAnime@0.05,0.5",
            "x": 162,
            "y": 209
        },
        {
            "condition": "windowState,EventEditorMain,ok",
            "followWindow": "EventEditorMain",
            "hint": qsTr("Press <b>OK</b>, and your map has a new inhabitant."),
            "icon": "click",
            "target": "EventEditorMain\/ok",
            "x": 221,
            "y": 376
        }
]
    },
    {
        "condition": "yesNo,database,end",
        "followWindow": "MainWindow",
        "hint": qsTr("Your heroes and their belongings live in the <b>database</b>. Shall we have a look?"),
        "icon": "eye",
        "target": "action:Database",
        "x": 417,
        "y": 40
    },
    {
        "hint": qsTr("The database"),
        "label": "database",
        "group": [
        {
            "condition": "windowState,DatabaseMain,open",
            "followWindow": "MainWindow",
            "hint": qsTr("Open the <b>database</b>."),
            "icon": "click",
            "target": "action:Database",
            "x": 417,
            "y": 40
        },
        {
            "condition": "list,1",
            "followWindow": "DatabaseMain",
            "hint": qsTr("Choose one of the <b>heroes</b>. On the right you can change everything about them."),
            "icon": "click",
            "target": "DatabaseMain\/entries[1]",
            "x": 90,
            "y": 82
        },
        {
            "condition": "windowState,DatabaseMain,close",
            "followWindow": "DatabaseMain",
            "hint": qsTr("Look around as long as you like, then press <b>OK</b>."),
            "icon": "click",
            "target": "DatabaseMain\/ok",
            "x": 443,
            "y": 322
        }
]
    },
    {
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("<b>Well done!</b> You have started a game, painted and met somebody.<p>This button brings the tutorial back at any time.</p>"),
        "icon": "eye",
        "label": "end",
        "target": "action:Tutorial",
        "x": 490,
        "y": 40
    }
];