"""What the newspaper prints, and the picture with it. The key is the name of the page's file."""
from news_chiefs import (behind_bars, exploding_car, falling_helicopter, lying_in_state, parachute, vanished)
from news_disasters import drought, earthquake, hurricane
from news_guerrillas import broken_bridge, burning_estate, exploding_factory
from news_war import marching_off
from newspaper import Story

STORIES = {
    'news1': Story(
        headline='DROUGHT!',
        deck=('Rain cancelled until', 'further notice'),
        below='Palace fountains “strategic”, stay on',
        illustration=drought,
        caption='The river at Santa Paz this morning. Bathing is again permitted.',
        title='Harvest falls, morale rises',
        body='For the fifth month no drop has fallen on the Republic. The Minister of Agriculture has '
             'explained to the clouds what is at stake, so far without result. Peasants report empty fields, '
             'landowners report empty peasants. Incomes are down throughout the country. The Palace asks '
             'everyone to tighten his belt; those who have eaten theirs may apply for string.',
        second_title='Household hint',
        second_body='Dust, properly seasoned, is filling. Water may be shared with a neighbour, beginning '
                    'with his.',
        number='No. 1,871'),
    'news2': Story(
        headline='HURRICANE!',
        deck=('Foreign wind', 'enters country'),
        below='without a visa',
        illustration=hurricane,
        caption='The village of Dos Palmas, on its way to the capital.',
        title='Coast moved inland',
        body='A hurricane of doubtful origin crossed the island last night and took a good part of it along. '
             'Thousands are missing, together with their houses, taxes and votes. The President followed the '
             'disaster with concern from the cellar. Roofs that have landed on state property belong to the '
             'State. Incomes will sink for a while; so will the harbour.',
        second_title='Found',
        second_body='One church, one bus, eleven cows. Owners may apply to the Ministry, bringing a rope.',
        number='No. 1,902'),
    'news3': Story(
        headline='EARTH SHAKES!',
        deck=('Nation rallies round', 'the President'),
        below='Palace unharmed, joy without limits',
        illustration=earthquake,
        caption='Grateful citizens before the Palace, the last building with a view.',
        title='The people stand by him',
        body='Yesterday at noon the earth of the Republic trembled. Experts still differ whether it was the '
             'ground or the applause after the President’s speech. Where houses fell, neighbours dug, sang '
             'and praised the firmness of the Palace, which did not move. “He shook hands with every one of '
             'us,” says a survivor; “so did everything else.” Where incomes fell, spirits were told to rise.',
        second_title='To our readers',
        second_body='Cracks in walls, roads and families will be filled by the Ministry in order of loyalty.',
        number='No. 1,933'),
    'newsa1': Story(
        headline='MAYDAY!',
        deck=('Army chief’s helicopter', 'obeys gravity'),
        below='“It was the newest one we had,” says the mechanic',
        illustration=falling_helicopter,
        caption='The machine a moment before it was struck off the list of assets.',
        title='A soldier to the very end',
        body='The chief of our Army was lost this morning when his helicopter, on a routine flight to his '
             'country house, came down faster than planned. Sabotage has been ruled out, and so has the '
             'mechanic. The pilot survived by not being on board. The President, who had lent the machine, is '
             'inconsolable until noon. A new chief is to be named at once; the candidates have asked to '
             'travel by bus.',
        second_title='Memorial',
        second_body='Tickets for the state funeral are compulsory. The medals of the deceased fill two '
                    'lorries.',
        number='No. 1,954'),
    'newsa2': Story(
        headline='FAREWELL!',
        deck=('Army chief passes away', 'at his own banquet'),
        below='The cook is helping the police, loudly',
        illustration=lying_in_state,
        caption='The guard of honour, chosen among those who did not dine with him.',
        title='It was the oysters',
        body='The chief of our Army died last night of a dish he had praised only minutes before. Physicians '
             'speak of a natural death: anyone would have died of it. He leaves a widow, nine villas and an '
             'unfinished plan for Thursday, which the President has read with interest. The second course was '
             'cancelled. A new chief must be chosen, and a new taster.',
        second_title='Mourning',
        second_body='Black is to be worn for a week. The State sells it at a fair price; nobody else may.',
        number='No. 1,960'),
    'newsa3': Story(
        headline='GONE!',
        deck=('Army chief resigns', 'at three thousand feet'),
        below='His pay went with him; so did everybody else’s',
        illustration=parachute,
        caption='The General leaves the service. The rain of banknotes was soon over.',
        title='A sudden change of air',
        body='The chief of our Army left his post yesterday, and the aeroplane shortly after. With him went a '
             'suitcase containing the wages of two divisions and, it is feared, the plan of the Palace '
             'garden. A neighbouring country denies that he has arrived and praises his tan. The President '
             'regards the matter as closed, like the border. A new chief will be appointed.',
        second_title='Reward',
        second_body='For the General: one medal. For the suitcase: two medals and no questions.',
        number='No. 1,967'),
    'newsp1': Story(
        headline='KABOOM!',
        deck=('Police chief’s car', 'fails inspection'),
        below='Witnesses saw nothing; all of them have signed',
        illustration=exploding_car,
        caption='Avenue of the Revolution, which will be renamed for a while.',
        title='He was ahead of his time',
        body='The chief of our Police was promoted to memory this morning, when his motor-car started in '
             'several directions. Detectives suspect the guerrillas, the students, the opera and one another. '
             'The driver had called in sick a minute earlier and has been called out since. The President has '
             'ordered three days of silence, to be checked from house to house. A successor is wanted who '
             'prefers walking.',
        second_title='Traffic',
        second_body='The avenue is closed. Glass found in the street is evidence and may not be collected.',
        number='No. 1,954'),
    'newsp2': Story(
        headline='ARRESTED!',
        deck=('Police chief held', 'by mistake'),
        below='He insists; so did the others',
        illustration=behind_bars,
        caption='The prisoner praised the speed of his own department.',
        title='No exceptions, he had said',
        body='The chief of our Police was taken from his bed at four in the morning by a patrol that was '
             'behind on its quota. He protested his innocence, which his own handbook lists as the first sign '
             'of guilt. By noon he had confessed to everything, including some matters we had not heard of. '
             'The President thanks the patrol and has it watched. A new chief is to be picked today.',
        second_title='Correction',
        second_body='Yesterday’s report that the police make no mistakes was a mistake.',
        number='No. 1,960'),
    'newsp3': Story(
        headline='VANISHED!',
        deck=('Police chief disappears;', 'police baffled'),
        below='Last seen standing behind our reporter',
        illustration=vanished,
        caption='A hat, a pair of glasses and no further questions.',
        title='His own best disciple',
        body='The chief of our Police, who made so many people disappear, has now done it himself. On his '
             'desk were found his hat, his glasses and a list of names from which the first page is missing. '
             'Neighbours heard nothing, as they have been taught. The President has ordered a search, but not '
             'a thorough one. Citizens who find the chief are asked to keep him. A new one will be named.',
        second_title='Have you seen him?',
        second_body='Then you have not. Please report at once that you saw nothing.',
        number='No. 1,967'),
    'newsg1': Story(
        headline='AMBUSH!',
        deck=('Guerrillas burn down', 'great plantations'),
        below='Landowners demand rain, troops and money',
        illustration=burning_estate,
        caption='The Hacienda Buenavista, which had one.',
        title='Sugar caramelised overnight',
        body='Armed guerrillas came down from the hills last night and set fire to the largest estates of the '
             'Republic. The smell was excellent as far as the capital. The landowners, awakened by their '
             'overseers, counted their losses twice and added the wine. They expect the State to pay for '
             'every stalk. The army reached the spot in time to warm its hands.',
        second_title='The bill',
        second_body='The gentlemen’s claim has reached the Palace. It came by armoured car.',
        number='No. 1,980'),
    'newsg2': Story(
        headline='SABOTAGE!',
        deck=('Guerrillas blow up', 'the great factory'),
        below='Shift ends four hours early, workers calm',
        illustration=exploding_factory,
        caption='Production reached its highest point at ten past nine.',
        title='Chimney found in next valley',
        body='Guerrillas attacked the industrial quarter yesterday with dynamite that, as a proud foreman '
             'confirms, was made there. Three halls have gone, and with them this year’s plan. The '
             'industrialists are beside themselves and each other. They remind the President what they paid '
             'for his campaign and ask for it back, with damages. The night watchman has been promoted for '
             'absence.',
        second_title='The bill',
        second_body='The claim is being typed. It needs a second ribbon and a third clerk.',
        number='No. 1,981'),
    'newsg3': Story(
        headline='BRIDGE DOWN!',
        deck=('Guerrillas cut the', 'railway in two'),
        below='Both halves are to run on time',
        illustration=broken_bridge,
        caption='The 8.15 express stopped for the first time in its history.',
        title='The State will pay for it',
        body='The great railway bridge, opened by the President in each of the last four years, was blown up '
             'by guerrillas at dawn. The express halted in time because it was late. Repairs will cost the '
             'treasury fifteen million, of which the bridge is to receive a part. Until then passengers will '
             'be thrown across by the army, sitting down.',
        second_title='Travellers',
        second_body='First class crosses by boat, second class by rope, third class by itself.',
        number='No. 1,982'),
    'newswar': Story(
        headline='WAR!',
        deck=('Neighbour caught existing', 'right next to our border'),
        below='“We are invading them in self-defence,” explains Mr. President',
        illustration=marching_off,
        caption='Our boys march off in high spirits. The band was ordered to look away.',
        title='Victory expected before lunch',
        body='The President declared war at dawn, right after breakfast and shortly before the reasons. The '
             'nation received the news with joy, as instructed. Generals promise a victory by the weekend; '
             'maps of the enemy have been ordered and will arrive after it. Soldiers will be issued boots in '
             'order of rank. Citizens who wish to volunteer have already been listed.',
        second_title='What you can do',
        second_body='Pots, pans and eldest sons are to be handed in at the nearest police station. Cheering '
                    'starts at nine and ends when the band does.',
        number='No. 1,964'),
}
