var scenario = [
    {
        "command": "presetData,meadow",
        "comment": "starts from known data, without a target",
        "condition": "wait,3",
        "followWindow": "MainWindow",
        "hint": qsTr("This tour meets every condition once. <b>Wait</b> three seconds."),
        "icon": "wait"
    },
    {
        "hint": qsTr("The map"),
        "group": [
        {
            "comment": "both sides change",
            "condition": "mouseEvent,Map,click",
            "followWindow": "MainWindow",
            "hint": qsTr("<b>Click</b> the map in the corner. Here the arrow points up and the hint stands on its left."),
            "icon": "click",
            "target": "Map@0.945,0.076",
            "x": 1089,
            "y": 108
        },
        {
            "condition": "mouseEvent,Map,doubleClick",
            "followWindow": "MainWindow",
            "hint": qsTr("<b>Double-click</b> near the right edge."),
            "icon": "doubleClick",
            "target": "Map@0.98,0.655",
            "x": 1121,
            "y": 460
        },
        {
            "condition": "popup,Map",
            "followWindow": "MainWindow",
            "hint": qsTr("Open the map’s <b>context menu</b> with a right click."),
            "icon": "rightClick",
            "target": "Map@0.4,0.32",
            "x": 577,
            "y": 268
        },
        {
            "condition": "windowState,EventEditorMain,open",
            "followWindow": "Popup",
            "hint": qsTr("Choose <b>Edit Event</b>."),
            "icon": "click",
            "target": "action:Edit Event",
            "x": 60,
            "y": 12
        },
        {
            "hint": qsTr("The event"),
            "group": [
            {
                "condition": "textLength,>=,3",
                "followWindow": "EventEditorMain",
                "hint": qsTr("Type a <b>name</b> of three letters."),
                "icon": "keyboard",
                "target": "EventEditorMain\/name",
                "x": 249,
                "y": 41
            },
            {
                "condition": "comboBox,trigger,0",
                "followWindow": "EventEditorMain",
                "hint": qsTr("Choose the <b>first trigger</b>."),
                "icon": "click",
                "target": "EventEditorMain\/trigger",
                "x": 260,
                "y": 133
            },
            {
                "condition": "spinBox,>=,5",
                "followWindow": "EventEditorMain",
                "hint": qsTr("Make it <b>fast</b>: five or more."),
                "icon": "keyboard",
                "target": "EventEditorMain\/speed@0.3,0.5",
                "x": 240,
                "y": 171
            },
            {
                "condition": "checked,walkAnime,1",
                "followWindow": "EventEditorMain",
                "hint": qsTr("Turn the <b>animation</b> on."),
                "icon": "click",
                "target": "EventEditorMain\/walkAnime@0.05,0.5",
                "x": 162,
                "y": 209
            },
            {
                "condition": "windowState,EventEditorMain,ok",
                "followWindow": "EventEditorMain",
                "hint": qsTr("Press <b>OK</b>."),
                "icon": "click",
                "target": "EventEditorMain\/ok",
                "x": 221,
                "y": 376
            }
]
        }
]
    },
    {
        "hint": qsTr("The panel"),
        "group": [
        {
            "condition": "list,5",
            "followWindow": "MapEditLeftPanelItem",
            "hint": qsTr("Choose the <b>sixth tile</b>."),
            "icon": "click",
            "target": "listBox1[5]",
            "x": 60,
            "y": 176
        },
        {
            "condition": "mouseEvent,listBox2,click",
            "followWindow": "MapEditLeftPanelItem",
            "hint": qsTr("Click an <b>event</b> in the list."),
            "icon": "click",
            "target": "listBox2[0]",
            "x": 60,
            "y": 534
        },
        {
            "condition": "popup,*",
            "followWindow": "MapEditTreeBox",
            "hint": qsTr("Right-click a <b>map</b> in the tree."),
            "icon": "rightClick",
            "target": "mapTree[0][0]",
            "x": 110,
            "y": 393
        },
        {
            "condition": "windowState,MessageBox,open",
            "followWindow": "Popup",
            "hint": qsTr("Choose <b>Delete Map</b>. Nothing is lost yet."),
            "icon": "click",
            "target": "action:Delete",
            "x": 60,
            "y": 62
        },
        {
            "condition": "pressed,0,1",
            "followWindow": "MessageBox",
            "hint": qsTr("Better press <b>Keep</b>."),
            "icon": "click",
            "target": "MessageBox\/keep",
            "x": 306,
            "y": 61
        }
]
    },
    {
        "hint": qsTr("The windows"),
        "group": [
        {
            "condition": "action,Options,",
            "followWindow": "MainWindow",
            "hint": qsTr("Open the <b>options</b>. The arrow points up here."),
            "icon": "click",
            "target": "action:Options",
            "x": 450,
            "y": 40
        },
        {
            "condition": "checked,grid,0",
            "followWindow": "Options",
            "hint": qsTr("Turn the <b>grid</b> off."),
            "icon": "click",
            "target": "Options\/grid@0.05,0.5",
            "x": 150,
            "y": 41
        },
        {
            "condition": "windowState,Options,cancel",
            "followWindow": "Options",
            "hint": qsTr("And leave it as it was: <b>Cancel</b>."),
            "icon": "click",
            "target": "Options\/cancel",
            "x": 311,
            "y": 162
        },
        {
            "condition": "windowState,Popup,open",
            "followWindow": "MainWindow",
            "hint": qsTr("Open the <b>first menu</b>."),
            "icon": "click",
            "target": "menus[0]",
            "x": 20,
            "y": 10
        },
        {
            "condition": "action,New Project,",
            "followWindow": "Popup",
            "hint": qsTr("Choose <b>New Project</b>."),
            "icon": "click",
            "target": "fileMenu[0]",
            "x": 60,
            "y": 12
        },
        {
            "condition": "wait,3",
            "followWindow": "NewProject",
            "hint": qsTr("This step hides its <b>arrow</b>. Wait again."),
            "icon": "wait",
            "option": 1,
            "target": "NewProject\/title",
            "x": 249,
            "y": 41
        },
        {
            "condition": "windowState,NewProject,close",
            "followWindow": "NewProject",
            "hint": qsTr("<b>Close</b> the window."),
            "icon": "click",
            "target": "NewProject\/cancel",
            "x": 311,
            "y": 238
        }
]
    },
    {
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("Press <b>Next</b>."),
        "icon": "eye",
        "label": "again",
        "target": "mapArea",
        "x": 705,
        "y": 332
    },
    {
        "condition": "yesNo,again,",
        "followWindow": "MainWindow",
        "hint": QT_TRANSLATE_NOOP("all-conditions", "Once more? <b>Yes</b> goes back by a step, <b>No</b> goes on."),
        "icon": "eye",
        "target": "mapArea",
        "x": 705,
        "y": 332
    },
    {
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("<b>That was all.</b> Press <b>Next</b> to end."),
        "icon": "eye",
        "target": "mapArea@0.25,0.7",
        "x": 417,
        "y": 524
    }
];