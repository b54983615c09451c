var scenario = [
    {
        "hint": qsTr("Writing a list"),
        "group": [
        {
            "condition": "click,",
            "followWindow": "MainWindow",
            "hint": qsTr("<b>Welcome!</b> Here you write down who comes to your party. Press <b>Next</b> to begin."),
            "icon": "eye",
            "x": 210,
            "y": 120
        },
        {
            "condition": "textLength,>=,4",
            "followWindow": "MainWindow",
            "hint": qsTr("Type a <b>name</b>, four letters or more."),
            "icon": "keyboard",
            "label": "again",
            "x": 110,
            "y": 33
        },
        {
            "condition": "action,Add,",
            "followWindow": "MainWindow",
            "hint": qsTr("Click <b>Add</b>."),
            "icon": "click",
            "x": 320,
            "y": 33
        }
]
    },
    {
        "condition": "yesNo,,again",
        "followWindow": "MainWindow",
        "hint": qsTr("Is everybody on the list?"),
        "x": 210,
        "y": 120
    },
    {
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("That is all. Have a nice party!"),
        "icon": "eye"
    }
];
