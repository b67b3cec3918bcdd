Air-conditioned tent
Audio system with two microphones
Balloon arch
Bar service, beer and wine
Bar service, full bar
Bar stools
Bartender
Bistro lights
Buffet dinner
Cake table
Catering, buffet
Catering, plated
Centerpieces
Chair covers with sashes
Champagne toast
Children's table
Clean-up and removal
Cocktail hour
Coffee and tea service
Contract review
Custom signage
Dance floor
Day-of coordination
Delivery and set-up
Dessert table
Disc jockey, four hours
Dish rental
Draping
Event insurance
Favors
Floral arrangement
Garden roses
Generator
Gift table
Glassware
Guest book table
Guest transportation
Hors d'oeuvres, passed
Invitations and postage
Lectern with microphone
Linens, ivory
Linens, white
Live band
Lounge furniture
Menu cards
Napkins
Parking attendant
Photo booth
Photography
Place cards
Planning and coordination
Portable heater
Projector and screen
Rehearsal
Restroom trailer
Round tables, 60 inch
Seating chart
Security
Set design
Site visit
Stage
String quartet
Table numbers
Tent
Travel
Uplighting
Valet parking
Venue decoration
Venue rental
Videography
Welcome sign