var scenario = [
    {
        "command": "presetData,meadow",
        "comment": "C:\\tours",
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("<b>Welcome!</b> Press Next."),
        "icon": "eye"
    },
    {
        "hint": qsTr("Painting"),
        "label": "paint",
        "group": [
        {
            "comment": "the second tile",
            "condition": "list,1",
            "followWindow": "MapEditLeftPanelItem",
            "hint": qsTr("Choose the <b>flowers</b>, say \"hi\" 😀."),
            "icon": "click",
            "option": 1,
            "x": 60,
            "y": 72
        },
        {
            "condition": "mouseEvent,Map,click",
            "hint": QT_TRANSLATE_NOOP("tour", "Click the map."),
            "target": "MainWindow/map@0.5,0.5"
        }
]
    },
    {
        "condition": "windowState,Options,close",
        "followWindow": "Options",
        "hint": qsTr("Close it.", "a dialog"),
        "x": 12,
        "y": 34
    },
    {
        "condition": "yesNo,paint,end",
        "hint": qsTr("Once again?")
    },
    {
        "condition": "textLength,>=,6",
        "hint": qsTr("Type six letters."),
        "label": "end"
    }
];
