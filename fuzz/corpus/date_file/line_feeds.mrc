Third
korvane("One",1/2/2001)
korvane("Two",1/2/2001)
