var scenario = [
    {
        "command": "newNote,",
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("<b>Welcome!</b> You will write a note and find a word in it. Press <b>Next</b> to begin."),
        "icon": "eye"
    },
    {
        "condition": "words,3",
        "followWindow": "MainWindow",
        "hint": qsTr("Click here and <b>write</b> something, three words or more."),
        "icon": "keyboard",
        "target": "note@0.3,0.3",
        "x": 120,
        "y": 120
    },
    {
        "hint": qsTr("Finding a word"),
        "group": [
        {
            "condition": "windowState,Find,open",
            "followWindow": "MainWindow",
            "hint": qsTr("Open <b>Find</b>."),
            "icon": "click",
            "target": "action:Find",
            "x": 79,
            "y": 38
        },
        {
            "condition": "textLength,>=,3",
            "followWindow": "Find",
            "hint": qsTr("Type the beginning of a <b>word</b>."),
            "icon": "keyboard",
            "target": "Find\/text",
            "x": 120,
            "y": 22
        },
        {
            "condition": "checked,matchCase,1",
            "followWindow": "Find",
            "hint": qsTr("<b>Capitals</b> shall count."),
            "icon": "click",
            "target": "Find\/matchCase@0.05,0.5",
            "x": 30,
            "y": 50
        },
        {
            "condition": "pressed,0,0",
            "followWindow": "Find",
            "hint": qsTr("<b>Find</b> it."),
            "icon": "click",
            "target": "Find\/findNext",
            "x": 180,
            "y": 80
        },
        {
            "condition": "windowState,Find,close",
            "followWindow": "Find",
            "hint": qsTr("<b>Close</b> the dialog."),
            "icon": "click",
            "target": "Find\/close",
            "x": 260,
            "y": 80
        }
]
    },
    {
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("<b>Well done!</b> The word is marked in your note."),
        "icon": "eye"
    }
];
