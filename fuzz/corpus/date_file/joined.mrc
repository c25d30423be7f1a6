A (b)
korvane("One",1/2/2001)korvane("Two",1/2/2001
korvane("A (b)",3/4/2002)korvane("Two and a half"