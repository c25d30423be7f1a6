Third
korvane("Two",1/2/2001)
korvane("Two",1/2/2001)
korvane("Two",3/4/2002)
korvane("One"